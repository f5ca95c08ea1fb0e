// SPDX-License-Identifier: MIT
#include "camconfig/featuretooltip.h"

#include "base/cameratext.h"

#include <OrvGenParam/Int.h>

#include <QLabel>
#include <QTextDocumentFragment>
#include <QVariant>

namespace OrvGui {

namespace {

/// The property of a widget that stores the tool tip set by this class.
constexpr char given[] = "orvFeatureToolTip";

QString escaped(const char *text)
{
    return cameraText(QString::fromUtf8(text).simplified()).toHtmlEscaped();
}

QString joined(QStringList lines)
{
    lines.removeAll(QString());
    return lines.join(QStringLiteral("<br/>"));
}

} // namespace

QString FeatureToolTip::text(const OrvGenParam::Param *param)
{
    return param ? joined({head(param), unit(param), name(param)}) : QString();
}

QString FeatureToolTip::text(const OrvGenParam::Param *param, const Range &range,
                             bool isCamerasUnit)
{
    return joined({head(param), tr("Range: %1 to %2").arg(range.min).arg(range.max),
                   tr("Increment: %1").arg(range.increment),
                   isCamerasUnit ? unit(param) : QString(), name(param)});
}

QString FeatureToolTip::text(std::initializer_list<const OrvGenParam::Param *> params)
{
    QStringList texts;
    for (const OrvGenParam::Param *param : params)
        texts << text(param);
    texts.removeAll(QString());
    return texts.join(QStringLiteral("<br/><br/>"));
}

QString FeatureToolTip::head(const OrvGenParam::Param *param)
{
    return joined({QStringLiteral("<b>%1</b>").arg(escaped(param->GetDisplayName())),
                   escaped(param->GetDescription())});
}

QString FeatureToolTip::unit(const OrvGenParam::Param *param)
{
    const auto *number = dynamic_cast<const OrvGenParam::Int *>(param);
    const QString unit = number ? escaped(number->GetUnit()) : QString();
    return unit.isEmpty() ? QString() : tr("Unit: %1").arg(unit);
}

/// Empty when it is equal to the display name.
QString FeatureToolTip::name(const OrvGenParam::Param *param)
{
    const QString name = escaped(param->GetName());
    return name == escaped(param->GetDisplayName()) ? QString() : tr("Feature: %1").arg(name);
}

void FeatureToolTip::set(QWidget *widget, const QString &text)
{
    if (widget->property(given).toString() == text)
        return;
    setOne(widget, text);
    for (QLabel *label : widget->window()->findChildren<QLabel *>()) {
        if (label->buddy() == widget)
            setOne(label, text);
    }
}

void FeatureToolTip::setOne(QWidget *widget, const QString &text)
{
    const bool isOwn = widget->toolTip() != widget->property(given).toString();
    widget->setProperty(given, text);
    if (isOwn)
        return;
    widget->setToolTip(text);
    // Without a description, a screen reader would read the tool tip with its markup.
    widget->setAccessibleDescription(QTextDocumentFragment::fromHtml(text).toPlainText());
}

} // namespace OrvGui

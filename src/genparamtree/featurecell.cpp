// SPDX-License-Identifier: MIT
#include "genparamtree/featurecell.h"

#include "base/genicamstring.h"
#include "base/readablecolors.h"
#include "genparamtree/genparamdelegate.h"

#include <GenApi/GenApi.h>

#include <QLocale>
#include <QStyleOptionViewItem>

#include <cmath>

namespace OrvGui {

namespace {

constexpr int nameColumn = 0;

// The share of the text colour in a background that is computed.
constexpr double alternateShare = 0.06;
constexpr double categoryShare = 0.22;

// Outside this range a number is more readable with an exponent.
constexpr double plainMin = 1e-5;
constexpr double plainMax = 1e15;

QString withoutExponent(double value, int precision, const QLocale &locale)
{
    // The precision counts significant digits, also for a number below 1.
    const int exponent =
        value == 0 ? 0 : static_cast<int>(std::floor(std::log10(std::fabs(value))));
    int decimals = qMax(precision, precision - 1 - exponent);
    for (QString text = QString::number(value, 'f', decimals);
         decimals > 0 && text.endsWith(QLatin1Char('0')); text.chop(1))
        --decimals;
    return locale.toString(value, 'f', decimals);
}

QString automatic(double value, int precision, const QLocale &locale)
{
    const double magnitude = std::fabs(value);
    if (value == 0 || (magnitude >= plainMin && magnitude < plainMax))
        return withoutExponent(value, precision, locale);
    return locale.toString(value, 'g', precision);
}

QString floatText(GenApi::IFloat *node, double value, const QLocale &locale)
{
    const int precision =
        node ? static_cast<int>(qBound(int64_t(0), node->GetDisplayPrecision(), int64_t(17))) : 6;
    switch (node ? node->GetDisplayNotation() : GenApi::fnAutomatic) {
    case GenApi::fnFixed:
        return locale.toString(value, 'f', precision);
    case GenApi::fnScientific:
        return locale.toString(value, 'e', precision);
    default:
        return automatic(value, precision, locale);
    }
}

QString withUnit(const QString &number, const GenICam::gcstring &unit)
{
    return unit.empty() ? number : number + QLatin1Char(' ') + fromUtf8(unit);
}

QString valueText(GenApi::IValue *feature, const QVariant &value, const QLocale &locale)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return value.toBool() ? GenParamDelegate::tr("True") : GenParamDelegate::tr("False");
    case QMetaType::Long: {
        auto *node = dynamic_cast<GenApi::IInteger *>(feature);
        const QString text = locale.toString(value.toLongLong());
        return node ? withUnit(text, node->GetUnit()) : text;
    }
    case QMetaType::Double: {
        auto *node = dynamic_cast<GenApi::IFloat *>(feature);
        const QString text = floatText(node, value.toDouble(), locale);
        return node ? withUnit(text, node->GetUnit()) : text;
    }
    default:
        return value.toString();
    }
}

QPalette::ColorGroup colorGroup(const QStyleOptionViewItem &option)
{
    if (!(option.state & QStyle::State_Enabled))
        return QPalette::Disabled;
    return option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

} // namespace

QString featureText(GenApi::IValue *feature, const QVariant &value, const QLocale &locale)
{
    QLocale ungrouped(locale); // as editors show numbers
    ungrouped.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    try {
        return valueText(feature, value, ungrouped);
    } catch (const GenICam::GenericException &) {
        return value.toString();
    }
}

void keepRowsReadable(QPalette *palette)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor text = palette->color(QPalette::Active, QPalette::Text);
        if (isReadable(text, palette->color(group, QPalette::AlternateBase)))
            continue;
        const QColor base = palette->color(group, QPalette::Base);
        palette->setColor(group, QPalette::AlternateBase,
                          mixed(base, readableOn(base, text), alternateShare));
    }
}

void styleFeatureCell(QStyleOptionViewItem *option, const QModelIndex &cell)
{
    const QPalette::ColorGroup group = colorGroup(*option);
    const bool isAlternate = option->features & QStyleOptionViewItem::Alternate;
    const QColor base = option->palette.color(group, QPalette::Base);
    const QColor text = option->palette.color(group, QPalette::Text);
    QColor background = isAlternate ? option->palette.color(group, QPalette::AlternateBase) : base;

    const QVariant category = cell.sibling(cell.row(), nameColumn).data(Qt::BackgroundRole);
    if (category.isValid()) {
        option->backgroundBrush = category.value<QBrush>();
        background = option->backgroundBrush.color();
        if (!isReadable(text, background)) {
            background = mixed(base, readableOn(base, text), categoryShare);
            option->backgroundBrush = background;
        }
    }
    option->palette.setColor(QPalette::Text, readableOn(background, text));
}

} // namespace OrvGui

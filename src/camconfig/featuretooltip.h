// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <initializer_list>

class QWidget;

namespace OrvGenParam {
class Param;
}

namespace OrvGui {

/// Tool tips that explain a widget by what the camera says of the feature that it shows.
class FeatureToolTip
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::FeatureToolTip)

public:
    struct Range
    {
        qint64 min;
        qint64 max;
        qint64 increment;
    };

    /// The feature's names, description and unit, as rich text in which the camera's own texts are
    /// only text. Empty without a parameter. Asks the camera for nothing.
    static QString text(const OrvGenParam::Param *param);

    /// The same, with the range. A range in another unit than the camera's comes without unit.
    static QString text(const OrvGenParam::Param *param, const Range &range, bool isCamerasUnit);

    /// Of several features, of which some may be null.
    static QString text(std::initializer_list<const OrvGenParam::Param *> params);

    /// Gives the tool tip to the widget and to its labels, those of which it is the buddy, unless
    /// they have one that does not come from here. An empty text takes it away.
    static void set(QWidget *widget, const QString &text);

private:
    static QString head(const OrvGenParam::Param *param);
    static QString unit(const OrvGenParam::Param *param);
    static QString name(const OrvGenParam::Param *param);
    static void setOne(QWidget *widget, const QString &text);
};

} // namespace OrvGui

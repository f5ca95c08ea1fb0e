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

/// Tool tips with the camera's description of the feature that a widget shows.
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

    /// The feature's names, description and unit, as rich text in which the camera's texts are
    /// escaped. Empty without a parameter. Reads nothing from the camera.
    static QString text(const OrvGenParam::Param *param);

    /// The same, with the range. Without the unit when the range is in another one.
    static QString text(const OrvGenParam::Param *param, const Range &range, bool isCamerasUnit);

    /// Of several features, of which some may be null.
    static QString text(std::initializer_list<const OrvGenParam::Param *> params);

    /// Sets the tool tip of the widget and of its labels, those of which it is the buddy. A tool
    /// tip that was not set by this class is kept. An empty text removes it.
    static void set(QWidget *widget, const QString &text);

private:
    static QString head(const OrvGenParam::Param *param);
    static QString unit(const OrvGenParam::Param *param);
    static QString name(const OrvGenParam::Param *param);
    static void setOne(QWidget *widget, const QString &text);
};

} // namespace OrvGui

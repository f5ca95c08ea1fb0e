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

    /// The feature's names, description and unit as rich text, with the camera's texts escaped.
    /// Empty without a parameter. Reads nothing from the camera.
    static QString text(const OrvGenParam::Param *param);

    /// The same with the range. The unit is left out when the range has another one.
    static QString text(const OrvGenParam::Param *param, const Range &range, bool isCamerasUnit);

    /// The same for several features; null pointers are ignored.
    static QString text(std::initializer_list<const OrvGenParam::Param *> params);

    /// Sets the tool tip of the widget and of its labels (those of which it is the buddy). A tool
    /// tip that this class has not set is kept. An empty text removes the tool tip.
    static void set(QWidget *widget, const QString &text);

private:
    static QString head(const OrvGenParam::Param *param);
    static QString unit(const OrvGenParam::Param *param);
    static QString name(const OrvGenParam::Param *param);
    static void setOne(QWidget *widget, const QString &text);
};

} // namespace OrvGui

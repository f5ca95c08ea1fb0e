// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

namespace OrvGui {

/// The type of parameter and widget in a binding.
enum OrvCamConfigMapKind : qint32 {
    MapDependent = -1,    ///< a widget that is only enabled and disabled with a `MapIntOrvSpinBox`
    MapEnumComboBox = 0,  ///< a `QComboBox` with an item for each entry
    MapEnumCheckBox = 1,  ///< a `QCheckBox`, unchecked for the value 0
    MapEnumButtons = 2,   ///< a `QButtonGroup` with a button for each entry
    MapEnumTabs = 3,      ///< a `QTabWidget` with a tab for each entry
    MapCommandButton = 4, ///< a `QPushButton`
    MapBooleanButton = 5, ///< a checkable `QAbstractButton`
    MapIntLineEdit = 6,   ///< a `QLineEdit`, with a `QIntValidator` for the limits
    MapIntSpinBox = 7,    ///< a `QSpinBox`
    MapIntOrvSpinBox = 8, ///< a `QtOrvSpinBox`
    MapIntSlider = 9,     ///< a `QSlider`, optionally with a converter
    MapIntOrvSliderSpinBox = 10 ///< a `QtOrvSliderSpinBox`, optionally with a converter
};

/// One binding of a parameter to a widget; see `OrvCamConfigMapper`.
struct OrvCamConfigMapData
{
    qint32 type; ///< an `OrvCamConfigMapKind`

    /// The widget, not owned; null for a button group, and once the widget is destroyed.
    QPointer<QWidget> control;

    /// The `QButtonGroup` of `MapEnumButtons`, or the optional `IOrvCamConfigIntConverter` of the
    /// types that may have one; otherwise null. Not owned.
    void *extra;
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigmapdata.h"
#include "orvcameraguiapi_export.h"

#include <OrvGenParam/ParamEventSink.h>

#include <QCoreApplication>
#include <QString>
#include <QVector>

#include <limits>
#include <memory>

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QSlider;
class QSpinBox;
class QTabWidget;
class QTimer;
class QtOrvSliderSpinBox;
class QtOrvSpinBox;

namespace OrvGenParam {
class Array;
class Boolean;
class Command;
class Enum;
class Int;
} // namespace OrvGenParam

namespace OrvGui {

class IOrvCamConfigIntConverter;
class OrvCamConfigMapperPrivate;

/// Binds parameters of a camera to widgets in both directions: a change by the user is written to
/// the camera at once, a change by the camera is shown, and a widget is enabled while its parameter
/// is writable.
///
/// Use one per dialog, and describe the form by map calls. A map call disconnects all receivers of
/// the widget's signals; connect handlers of your own after it. A null parameter, which the camera
/// lacks, disables the widget and binds nothing. A name has one binding. Mapping it again replaces
/// the binding and disables the previous widget, even when it is the same one; the next
/// notification restores its state. A parameter that is available but read-only leaves the widget's
/// state unchanged until the next notification.
///
/// Integers in a widget are limited to the value cap; see the constructor. A failed read leaves the
/// widget's content unchanged.
///
/// Each refused write is reported in a message box and releases the key, button or slider that the
/// user is holding; the widget keeps the user's value until the camera's next notification. An
/// accepted write is recorded in the journal of the node map. A drag of a slider is one write, at
/// its end. Showing a value of the camera never writes it back, but the widget's signals are
/// emitted as for any change.
///
/// A bound widget, and the labels of which it is the buddy, get a tool tip with the camera's
/// description of the feature and the range, unless they have a tool tip already. Combo boxes, spin
/// boxes, sliders and tab bars without focus pass wheel events to their parent.
///
/// A binding ends when its name is mapped again, when it is unmapped, or when the widget or the
/// mapper is destroyed. Parameters must live as long as their widgets can be used: call `unmapAll`
/// before they are destroyed, or let the camera report them as not available. Converters and timers
/// must outlive the bindings. Use it on the GUI thread only; notifications must arrive there.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigMapper : public OrvGenParam::ParamEventSink
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::OrvCamConfigMapper)

public:
    /// `valueCap` is the largest maximum or value that a widget gets.
    explicit OrvCamConfigMapper(qint64 valueCap = std::numeric_limits<int>::max());
    ~OrvCamConfigMapper() override;

    /// Sets the array of the parameters that will be mapped; null for none. Without it, each value
    /// is read from the camera when it is shown, and the read blocks.
    void setArray(const OrvGenParam::Array *array);

    /// Shows the parameter in the widgets bound to it, and enables or disables them. When the value
    /// is not cached, this happens after it has been read.
    void OnParameterUpdate(OrvGenParam::Param *param) override;

    /// One item per entry; entries that are not available cannot be chosen.
    void mapEnumParam(OrvGenParam::Enum *param, QComboBox *comboBox);

    /// Checked for any value but 0; writes 1 and 0.
    void mapEnumParam(OrvGenParam::Enum *param, QCheckBox *checkBox);

    /// The buttons get the texts and values of the entries, in their order; buttons without an
    /// entry are hidden. The values become the ids, unless they are -1 or do not fit in an int.
    void mapEnumParam(OrvGenParam::Enum *param, QButtonGroup *buttons);

    /// The tabs get the texts of the entries, in their order; tabs without an entry are removed
    /// until an enumeration with more entries is mapped. The text of a tab is the value that is
    /// written: do not change it.
    void mapEnumParam(OrvGenParam::Enum *param, QTabWidget *tabs);

    /// With a timer, each click disables the button and starts the timer; the owner of the timer
    /// enables the button again.
    void mapCommandParam(OrvGenParam::Command *param, QPushButton *button, QTimer *timer);

    void mapBooleanParam(OrvGenParam::Boolean *param, QAbstractButton *button);

    /// Writes the text when it is entered or the line edit loses the focus, if its validator
    /// accepts it.
    void mapIntParam(OrvGenParam::Int *param, QLineEdit *lineEdit);

    /// Writes the number when it is entered or the spin box loses the focus.
    void mapIntParam(OrvGenParam::Int *param, QSpinBox *spinBox);
    void mapIntParam(OrvGenParam::Int *param, QSlider *slider,
                     IOrvCamConfigIntConverter *converter);
    void mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox);
    void mapIntParam(OrvGenParam::Int *param, QtOrvSliderSpinBox *spinBox,
                     IOrvCamConfigIntConverter *converter);

    /// The same with `dependents`: widgets that are enabled and disabled with the spin box, such as
    /// its labels and buttons. False when the parameter is null.
    bool mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox,
                     QVector<QWidget *> &dependents);

    /// Disables the widget and disconnects all receivers of its signals. The binding itself is
    /// kept.
    void unmapControl(const OrvCamConfigMapData &record);

    /// Unmaps all widgets of that parameter and removes the binding.
    void unmapParam(const QString &name);

    /// The same for all parameters. Accesses widgets only, no parameter.
    void unmapAll();

    /// Unregisters the mapper from all parameters of the array; bindings are kept. Call it before
    /// `unmapAll`, which forgets the parameters.
    void leave(const OrvGenParam::Array &array);

    /// Refreshes a widget without a notification of the camera.
    void updateSpinBox(OrvGenParam::Int *param, QtOrvSpinBox *spinBox);
    void updateSliderSpinBox(OrvGenParam::Int *param, QtOrvSliderSpinBox *spinBox,
                             IOrvCamConfigIntConverter *converter);
    void updateComboBox(OrvGenParam::Enum *param, QComboBox *comboBox);
    void updateRadioButtons(OrvGenParam::Enum *param, QButtonGroup *buttons);
    void updateTabWidget(OrvGenParam::Enum *param, QTabWidget *tabs);

protected:
    const std::unique_ptr<OrvCamConfigMapperPrivate> d;
};

} // namespace OrvGui

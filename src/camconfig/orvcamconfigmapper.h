// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigmapdata.h"
#include "orvcameraguiapi_export.h"

#include <OrvGenParam/ParamEventSink.h>

#include <QCoreApplication>
#include <QHash>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QVector>

#include <functional>
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

class FeatureJournal;
class FeatureReader;
class IOrvCamConfigIntConverter;

/// Binds parameters of a camera to widgets, in both directions: what the user changes is written to
/// the camera at once, what the camera changes is shown, and a widget is enabled while its
/// parameter can be written.
///
/// Embed one in each dialog and describe the form by map calls. A map call takes the widget over:
/// whatever was connected to its signals is disconnected, so connect handlers of your own after it.
/// A null parameter, one that the camera lacks, disables the widget and binds nothing. One name has
/// one binding; mapping it again replaces that and disables the earlier widget, also when it is the
/// same one (the next notification settles its state). A parameter that is available but read-only
/// leaves the widget's state as it is until the next notification.
///
/// Integers that go into a widget are at most the value cap; see the constructor. A value that
/// cannot be read leaves what the widget shows.
///
/// A write that the camera refuses is reported in a message box, one for each refused write, and
/// ends what the user was holding down at that moment; the widget keeps the user's value until the
/// camera's next notification. What the camera takes is recorded in the journal of its node map. A
/// drag of a slider is one write, at its end. Showing a value of the
/// camera never writes one back, yet the widget's signals tell of it as of any change.
///
/// A bound widget and its labels, those of which it is the buddy, get a tool tip with what the
/// camera says of the feature and with the range, unless they have one of their own. Combo boxes,
/// spin boxes, sliders and tab bars leave the wheel to what they stand in while they have no focus.
///
/// A binding lives until its name is mapped again, it is unmapped, its widget is destroyed or the
/// mapper is. Parameters must live as long as their widgets can be used; call `unmapAll` before
/// they go, or have the camera say that they are no longer available. Converters and timers must
/// outlive the bindings. Use it on the GUI thread only; notifications have to arrive there.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigMapper : public OrvGenParam::ParamEventSink
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::OrvCamConfigMapper)

public:
    /// `valueCap` is the largest number that a widget is given as maximum or value.
    explicit OrvCamConfigMapper(qint64 valueCap = std::numeric_limits<int>::max());
    ~OrvCamConfigMapper() override;

    /// The array of which parameters are going to be mapped; null for none. Without it, every
    /// value is asked of the camera when it is shown, and waited for.
    void setArray(const OrvGenParam::Array *array);

    /// What reads the parameters of that array.
    FeatureReader &reader() const;

    /// Where what the user writes to those parameters is recorded; null without an array.
    std::shared_ptr<FeatureJournal> journal() const;

    /// Shows the parameter in the widgets that are bound to it, and enables or disables them; once
    /// its value is known, where that has to be read first.
    void OnParameterUpdate(OrvGenParam::Param *param) override;

    /// One item for each entry; those that are not available cannot be chosen.
    void mapEnumParam(OrvGenParam::Enum *param, QComboBox *comboBox);

    /// Checked shows any value but 0; writes 1 and 0.
    void mapEnumParam(OrvGenParam::Enum *param, QCheckBox *checkBox);

    /// The buttons take the texts and values of the entries, in this order; those without an entry
    /// are hidden. The values become their ids, unless they are -1 or do not fit in an int.
    void mapEnumParam(OrvGenParam::Enum *param, QButtonGroup *buttons);

    /// The tabs take the texts of the entries, in this order; those without an entry are removed
    /// until an enumeration with more entries is mapped. A tab's text is what is written: leave it
    /// as it is.
    void mapEnumParam(OrvGenParam::Enum *param, QTabWidget *tabs);

    /// With a timer, each click disables the button and starts the timer; whoever gave the timer
    /// enables the button again.
    void mapCommandParam(OrvGenParam::Command *param, QPushButton *button, QTimer *timer);

    void mapBooleanParam(OrvGenParam::Boolean *param, QAbstractButton *button);

    /// A text counts when it is entered or the line edit left, if its validator accepts it.
    void mapIntParam(OrvGenParam::Int *param, QLineEdit *lineEdit);

    /// A number counts when it is entered or the spin box left.
    void mapIntParam(OrvGenParam::Int *param, QSpinBox *spinBox);
    void mapIntParam(OrvGenParam::Int *param, QSlider *slider,
                     IOrvCamConfigIntConverter *converter);
    void mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox);
    void mapIntParam(OrvGenParam::Int *param, QtOrvSliderSpinBox *spinBox,
                     IOrvCamConfigIntConverter *converter);

    /// As without `dependents`, which are enabled and disabled with the spin box; labels and
    /// buttons that belong to it, for instance. False when the parameter is null.
    bool mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox,
                     QVector<QWidget *> &dependents);

    /// Disables the widget and disconnects whatever is connected to its signals. The binding itself
    /// stays in the tables.
    void unmapControl(const OrvCamConfigMapData &record);

    /// Unmaps every widget of that parameter and forgets the binding.
    void unmapParam(const QString &name);

    /// The same for all parameters. Touches widgets only, no parameter.
    void unmapAll();

    /// Has no parameter of the array notify the mapper any more; what is bound stays bound. Call it
    /// before `unmapAll`, which forgets the parameters.
    void leave(const OrvGenParam::Array &array);

    /// Refresh a widget without a notification of the camera.
    void updateSpinBox(OrvGenParam::Int *param, QtOrvSpinBox *spinBox);
    void updateSliderSpinBox(OrvGenParam::Int *param, QtOrvSliderSpinBox *spinBox,
                             IOrvCamConfigIntConverter *converter);
    void updateComboBox(OrvGenParam::Enum *param, QComboBox *comboBox);
    void updateRadioButtons(OrvGenParam::Enum *param, QButtonGroup *buttons);
    void updateTabWidget(OrvGenParam::Enum *param, QTabWidget *tabs);

private:
    /// What a name is bound to, and what becomes null with a button group.
    struct Binding
    {
        OrvCamConfigMapData alive() const;

        OrvCamConfigMapData record;
        QPointer<QObject> group;
    };
    using Bindings = QVector<Binding>;
    using Records = QVector<OrvCamConfigMapData>;
    using Write = std::function<qint32()>;
    enum What { Everything, LimitsAroundValue };
    class Showing;
    struct State;

    void refresh(const QString &name, OrvGenParam::Param *param);
    void setUsable(const OrvCamConfigMapData &record, const OrvGenParam::Param *param,
                   bool usable) const;
    template<class Get>
    auto read(Get get) const;
    bool begin(OrvGenParam::Param *param, const Records &records);
    void finish(OrvGenParam::Param *param);
    void cut(const OrvCamConfigMapData &record);
    void fitTabCount(QTabWidget *tabs, int entries);
    void show(const OrvCamConfigMapData &record, OrvGenParam::Param *param);
    void showBoundTo(const QObject *control);
    bool checkCurrentButton(OrvGenParam::Enum *param, QButtonGroup *buttons);
    void showText(OrvGenParam::Int *param, QLineEdit *lineEdit);
    template<class Widget>
    bool showNumber(OrvGenParam::Int *param, Widget *widget, IOrvCamConfigIntConverter *converter,
                    What what = Everything);
    template<class Compound>
    void bindCompound(OrvGenParam::Int *param, Compound *widget,
                      IOrvCamConfigIntConverter *converter);
    template<class Slider>
    void onDragged(Slider *slider, const std::function<int()> &value,
                   const std::function<void()> &changed, const std::function<bool(What)> &show);
    void write(QObject *control, const QString &format, const OrvGenParam::Param *param,
               const QVariant &value, const Write &call);
    void note(const OrvGenParam::Param *param, const QVariant &value) const;
    void writeInt(QObject *control, OrvGenParam::Int *param, int shown,
                  IOrvCamConfigIntConverter *converter);
    QObject *context() const;

    const qint64 m_valueCap;
    QHash<QString, Bindings> m_bindings;
    QHash<QString, OrvGenParam::Param *> m_params; ///< whose notifications count, by name
    QHash<QString, QHash<QString, int>> m_tabs;    ///< parameter, entry: index of its tab
    const std::shared_ptr<State> m_state;          ///< may outlive the mapper for a moment
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#include "camconfig/orvcamconfigmapper.h"

#include "base/cameratext.h"
#include "base/selectordetour.h"
#include "camconfig/featurereader.h"
#include "camconfig/featuretooltip.h"
#include "camconfig/iorvcamconfigintconverter.h"
#include "camconfig/wheelguard.h"
#include "journal/featurejournal.h"
#include "widgets/heldinput.h"
#include "widgets/qtorvslider.h"
#include "widgets/qtorvsliderspinbox.h"
#include "widgets/qtorvspinbox.h"
#include "widgets/qtorvspinboxval.h"
#include "widgets/valuegrid.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam/Array.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QMessageBox>
#include <QMetaMethod>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTimer>

#include <algorithm>
#include <utility>

using OrvGenParam::Boolean;
using OrvGenParam::Command;
using OrvGenParam::Enum;
using OrvGenParam::EnumEntry;
using OrvGenParam::Int;
using OrvGenParam::Param;

namespace OrvGui {

namespace {

QString nameOf(const Param *param)
{
    return QString::fromUtf8(param->GetName());
}

QString symbolicOf(const EnumEntry *entry)
{
    return entry ? QString::fromUtf8(entry->GetSymbolic()) : QString();
}

/// Null when the index is not below the count, too.
EnumEntry *entryAt(const Enum *param, int index)
{
    return index < static_cast<int>(param->GetEntryCount())
               ? param->GetEntry(static_cast<uint32_t>(index))
               : nullptr;
}

/// For buttons without an entry, so that no entry's value finds them.
int idOfUnused(int index)
{
    return std::numeric_limits<int>::min() + index;
}

/// Of a button, its entry's value if that cannot be an id: ids are no larger than an int, and -1
/// stands for none.
const char valueBeyondIds[] = "orvEntryValue";

void setValue(QButtonGroup *group, QAbstractButton *button, qint64 value, int otherId)
{
    const bool isId = value != -1 && value == ValueGrid::toInt(value);
    group->setId(button, isId ? static_cast<int>(value) : otherId);
    button->setProperty(valueBeyondIds, isId ? QVariant() : QVariant(value));
}

qint64 valueOf(const QButtonGroup *group, QAbstractButton *button)
{
    const QVariant value = button->property(valueBeyondIds);
    return value.isValid() ? value.toLongLong() : group->id(button);
}

QAbstractButton *buttonOf(const QButtonGroup *group, qint64 value)
{
    for (QAbstractButton *button : group->buttons()) {
        if (valueOf(group, button) == value)
            return button;
    }
    return nullptr;
}

/// False only for the entry that is known not to be available at this moment.
bool canChoose(const Enum *param, qint64 value)
{
    for (uint32_t i = 0; i < param->GetEntryCount(); ++i) {
        const EnumEntry *entry = param->GetEntry(i);
        if (entry && entry->GetValue() == value)
            return entry->IsAvailable();
    }
    return true;
}

QButtonGroup *groupOf(const OrvCamConfigMapData &record)
{
    return record.type == MapEnumButtons ? static_cast<QButtonGroup *>(record.extra) : nullptr;
}

IOrvCamConfigIntConverter *converterOf(const OrvCamConfigMapData &record)
{
    return static_cast<IOrvCamConfigIntConverter *>(record.extra);
}

// All but QObject's own, which tell others to forget the object: Qt itself when a style sheet or a
// screen reader is in use.
void disconnectSignals(QObject *object)
{
    const QMetaObject *type = object->metaObject();
    for (int i = QObject::staticMetaObject.methodCount(); i < type->methodCount(); ++i) {
        const QMetaMethod method = type->method(i);
        if (method.methodType() == QMetaMethod::Signal)
            QObject::disconnect(object, method, nullptr, QMetaMethod());
    }
}

QtOrvSlider *sliderOf(const OrvCamConfigMapData &record)
{
    if (record.type == MapIntOrvSpinBox) {
        if (auto *spinBox = qobject_cast<QtOrvSpinBox *>(record.control))
            return spinBox->slider();
    }
    if (record.type == MapIntOrvSliderSpinBox) {
        if (auto *spinBox = qobject_cast<QtOrvSliderSpinBox *>(record.control))
            return spinBox->slider();
    }
    return nullptr;
}

void explain(const OrvCamConfigMapData &record, const QString &toolTip)
{
    if (const QButtonGroup *group = groupOf(record)) {
        for (QAbstractButton *button : group->buttons())
            FeatureToolTip::set(button, toolTip);
    } else if (auto *tabs = qobject_cast<QTabWidget *>(record.control.data())) {
        FeatureToolTip::set(tabs->tabBar(), toolTip); // the pages would show it all over
    } else if (record.control && record.type != MapDependent) {
        FeatureToolTip::set(record.control, toolTip);
    }
}

/// Calls the function if parameter and widget are of these kinds.
template<class Kind, class Widget, class Function>
void with(Param *param, QObject *control, Function function)
{
    auto *kind = dynamic_cast<Kind *>(param);
    auto *widget = qobject_cast<Widget *>(control);
    if (kind && widget)
        function(kind, widget);
}

void report(const QPointer<QObject> &control, const QString &text)
{
    HeldInput::end(control);
    QMessageBox::critical(nullptr, QString(), text, QMessageBox::Ok);
    // A groove starts to repeat only when its first step has been taken, that is now.
    if (control)
        QTimer::singleShot(0, control, [=] { HeldInput::end(control); });
}

QString intError()
{
    return OrvCamConfigMapper::tr("Error while setting the %1 integer value!\r\nError Code: %2");
}

QString enumError()
{
    return OrvCamConfigMapper::tr(
        "Error while setting the %1 enumeration value!\r\nError Code: %2");
}

} // namespace

/// While one exists, the widget shows a value of the camera: nothing is written.
///
/// Over before its end when a receiver of the widget's signals unmaps the widget or destroys the
/// mapper. What the widget then still does of the change under way must reach no other camera
/// either; a parameter that the widget has been given meanwhile is shown afterwards.
class OrvCamConfigMapper::Showing
{
public:
    Showing(OrvCamConfigMapper &mapper, QObject *control);
    ~Showing();
    Q_DISABLE_COPY(Showing)

    const QObject *control() const { return m_control; }
    bool isOver() const;
    void end() { m_isOver = true; }

private:
    OrvCamConfigMapper &m_mapper;
    const std::shared_ptr<State> m_state;
    QObject *const m_control;
    bool m_isOver = false;
};

struct OrvCamConfigMapper::State
{
    bool isShownIn(const QObject *control) const
    {
        return std::any_of(showing.begin(), showing.end(),
                           [=](const Showing *one) { return one->control() == control; });
    }

    /// What connections of the mapper end with. Null when the mapper is gone.
    std::unique_ptr<QObject> context{new QObject};
    QVector<Showing *> showing;
    QHash<Param *, QByteArray> registered; ///< with their names: they may be gone
    QHash<QTabWidget *, QVector<QPointer<QWidget>>> removedPages; ///< the last one first
    QHash<const Param *, QVariant> shown;                         ///< their values, for the journal
    WheelGuard wheelGuard;
    FeatureReader reader;
    FeatureJournal::Pointer journal;
};

OrvCamConfigMapper::Showing::Showing(OrvCamConfigMapper &mapper, QObject *control)
    : m_mapper(mapper), m_state(mapper.m_state), m_control(control)
{
    m_state->showing.append(this);
}

OrvCamConfigMapper::Showing::~Showing()
{
    m_state->showing.removeOne(this);
    if (m_isOver && m_state->context && !m_state->isShownIn(m_control))
        m_mapper.showBoundTo(m_control);
}

bool OrvCamConfigMapper::Showing::isOver() const
{
    return m_isOver || !m_state->context;
}

OrvCamConfigMapData OrvCamConfigMapper::Binding::alive() const
{
    OrvCamConfigMapData left = record;
    if (groupOf(record) && !group)
        left.extra = nullptr;
    return left;
}

OrvCamConfigMapper::OrvCamConfigMapper(qint64 valueCap)
    : m_valueCap(valueCap), m_state(std::make_shared<State>())
{
}

OrvCamConfigMapper::~OrvCamConfigMapper()
{
    m_state->context.reset();
}

QObject *OrvCamConfigMapper::context() const
{
    return m_state->context.get();
}

void OrvCamConfigMapper::setArray(const OrvGenParam::Array *array)
{
    int32_t error = OrvCam::Success;
    m_state->reader.setArray(array);
    m_state->journal = FeatureJournal::of(array ? array->GetNodeMap(&error) : nullptr);
    m_state->shown.clear();
}

std::shared_ptr<FeatureJournal> OrvCamConfigMapper::journal() const
{
    return m_state->journal;
}

void OrvCamConfigMapper::note(const Param *param, const QVariant &value) const
{
    m_state->shown.insert(param, value);
}

FeatureReader &OrvCamConfigMapper::reader() const
{
    return m_state->reader;
}

/// What the function reads of a parameter.
template<class Get>
auto OrvCamConfigMapper::read(Get get) const
{
    return m_state->reader.get(get);
}

void OrvCamConfigMapper::OnParameterUpdate(Param *param)
{
    const QString name = nameOf(param);
    if (SelectorDetour::isUnderWay() || m_params.value(name) != param)
        return; // of a camera that this mapper has been taken away from
    m_state->reader.whenKnown(this, param, {param}, [=] { refresh(name, param); });
}

void OrvCamConfigMapper::refresh(const QString &name, Param *param)
{
    if (m_params.value(name) != param)
        return; // no longer

    // Whoever listens to the widgets may map, unmap or destroy the mapper.
    const Bindings bindings = m_bindings.value(name);
    const std::shared_ptr<State> state = m_state;
    const auto isOver = [&] {
        return !state->context || m_bindings.value(name).constData() != bindings.constData();
    };

    const bool available = read([=] { return param->IsAvailable(); });
    if (available && read([=] { return param->IsReadable(); })) {
        for (const Binding &binding : bindings) {
            show(binding.alive(), param);
            if (isOver())
                return;
        }
    }
    const bool usable = available && read([=] { return param->IsWritable(); });
    for (const Binding &binding : bindings) {
        setUsable(binding.alive(), param, usable);
        if (isOver())
            return;
    }
}

void OrvCamConfigMapper::setUsable(const OrvCamConfigMapData &record, const Param *param,
                                   bool usable) const
{
    if (QButtonGroup *group = groupOf(record)) {
        const auto *choice = dynamic_cast<const Enum *>(param);
        for (QAbstractButton *button : group->buttons()) {
            const qint64 value = valueOf(group, button);
            button->setEnabled(usable &&
                               (!choice || read([=] { return canChoose(choice, value); })));
        }
    } else if (record.control) {
        record.control->setEnabled(usable);
    }
}

bool OrvCamConfigMapper::begin(Param *param, const Records &records)
{
    if (!param) {
        for (const OrvCamConfigMapData &record : records) {
            setUsable(record, param, false);
            explain(record, QString());
        }
        return false;
    }
    param->UnregisterEventSink(this);
    cut(records.first());

    // One that is only read-only keeps its state until the next notification.
    m_state->reader.fetchNow({param});
    const bool available = read([=] { return param->IsAvailable(); });
    if (!available || read([=] { return param->IsWritable(); })) {
        for (const OrvCamConfigMapData &record : records)
            setUsable(record, nullptr, available);
    }

    const QString name = nameOf(param);
    const Bindings former = m_bindings.value(name);
    if (!former.isEmpty())
        unmapControl(former.first().alive());
    Bindings bindings;
    const QString toolTip = FeatureToolTip::text(param);
    for (const OrvCamConfigMapData &record : records) {
        bindings << Binding{record, groupOf(record)};
        explain(record, toolTip);
        if (record.control)
            m_state->wheelGuard.guard(record.control);
    }
    m_bindings.insert(name, bindings);
    m_params.insert(name, param);
    return true;
}

void OrvCamConfigMapper::finish(Param *param)
{
    m_state->registered.insert(param, param->GetName());
    param->RegisterEventSink(this);
}

void OrvCamConfigMapper::cut(const OrvCamConfigMapData &record)
{
    QObject *control = record.control;
    if (QButtonGroup *group = groupOf(record))
        control = group;
    if (!control)
        return;
    disconnectSignals(control);
    if (QtOrvSlider *slider = sliderOf(record))
        QObject::disconnect(slider, nullptr, context(), nullptr);
    for (Showing *showing : m_state->showing) {
        if (showing->control() == control)
            showing->end();
    }
}

void OrvCamConfigMapper::unmapControl(const OrvCamConfigMapData &record)
{
    cut(record);
    setUsable(record, nullptr, false);
    explain(record, QString());
}

void OrvCamConfigMapper::unmapParam(const QString &name)
{
    m_params.remove(name);
    m_tabs.remove(name);
    for (const Binding &binding : m_bindings.take(name))
        unmapControl(binding.alive());
}

void OrvCamConfigMapper::unmapAll()
{
    for (const QString &name : m_bindings.keys())
        unmapParam(name);
    m_state->registered.clear();
    m_state->shown.clear();
}

void OrvCamConfigMapper::leave(const OrvGenParam::Array &array)
{
    const auto registered = std::exchange(m_state->registered, {});
    for (auto it = registered.begin(); it != registered.end(); ++it) {
        if (array.GetParam(it.value().constData()) == it.key())
            it.key()->UnregisterEventSink(this);
        else
            m_state->registered.insert(it.key(), it.value());
    }
}

void OrvCamConfigMapper::write(QObject *control, const QString &format, const Param *param,
                               const QVariant &value, const Write &call)
{
    if (m_state->isShownIn(control))
        return;
    // The write notifies, and whoever listens may destroy the mapper, the widget or the camera.
    const std::shared_ptr<State> state = m_state;
    const QString name = nameOf(param);
    const QPointer<QObject> widget(control);
    qint32 code = OrvCam::Success;
    const bool isTaken =
        FeatureJournal::write(state->journal, name, state->shown.value(param), value, [&] {
            code = call();
            return code == OrvCam::Success;
        });
    if (isTaken)
        state->shown.insert(param, value);
    else
        report(widget, format.arg(name, QString::number(code)));
}

void OrvCamConfigMapper::writeInt(QObject *control, Int *param, int shown,
                                  IOrvCamConfigIntConverter *converter)
{
    const qint64 value = converter ? converter->ToDevice(shown, param) : shown;
    write(control, intError(), param, value, [=] { return param->SetValue(value); });
}

void OrvCamConfigMapper::mapEnumParam(Enum *param, QComboBox *comboBox)
{
    if (!begin(param, {{MapEnumComboBox, comboBox, nullptr}}))
        return;
    comboBox->clear();
    for (uint32_t i = 0; i < param->GetEntryCount(); ++i) {
        const QString name = symbolicOf(param->GetEntry(i));
        comboBox->addItem(cameraText(name, LongestName), name);
    }
    comboBox->setCurrentIndex(-1);
    updateComboBox(param, comboBox);
    QObject::connect(comboBox,
                     static_cast<void (QComboBox::*)(int)>(&QComboBox::currentIndexChanged),
                     context(), [=](int index) {
                         if (index < 0)
                             return;
                         const QString entry = comboBox->itemData(index).toString();
                         write(comboBox, enumError(), param, entry,
                               [=] { return param->SetSymbolicValue(entry.toUtf8().constData()); });
                     });
    finish(param);
}

void OrvCamConfigMapper::updateComboBox(Enum *param, QComboBox *comboBox)
{
    if (comboBox->count() == 0)
        return;
    int32_t error = OrvCam::Success;
    const QString current =
        read([&] { return QString::fromUtf8(param->GetSymbolicValue(&error)); });
    if (error == OrvCam::Success)
        note(param, current);
    const Showing showing(*this, comboBox);
    if (auto *items = qobject_cast<QStandardItemModel *>(comboBox->model())) {
        for (int i = 0; i < comboBox->count(); ++i) {
            const EnumEntry *entry = entryAt(param, i);
            items->item(i)->setEnabled(entry && read([=] { return entry->IsAvailable(); }));
        }
    }
    if (error == OrvCam::Success)
        comboBox->setCurrentIndex(
            comboBox->findData(current, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void OrvCamConfigMapper::mapEnumParam(Enum *param, QCheckBox *checkBox)
{
    const OrvCamConfigMapData record{MapEnumCheckBox, checkBox, nullptr};
    if (!begin(param, {record}))
        return;
    show(record, param);
    QObject::connect(checkBox, &QCheckBox::clicked, context(), [=](bool checked) {
        const qint64 value = checked ? 1 : 0;
        write(checkBox, enumError(), param, value, [=] { return param->SetIntValue(value); });
    });
    finish(param);
}

void OrvCamConfigMapper::mapEnumParam(Enum *param, QButtonGroup *buttons)
{
    const OrvCamConfigMapData record{MapEnumButtons, nullptr, buttons};
    if (!begin(param, {record}))
        return;
    const QList<QAbstractButton *> all = buttons->buttons();
    for (int i = 0; i < all.size(); ++i) {
        const EnumEntry *entry = entryAt(param, i);
        all[i]->setVisible(entry);
        setValue(buttons, all[i], entry ? entry->GetValue() : idOfUnused(i), idOfUnused(i));
        if (entry)
            all[i]->setText(cameraText(symbolicOf(entry), LongestName));
    }
    if (param->IsAvailable() && param->IsWritable())
        setUsable(record, param, true);
    if (!checkCurrentButton(param, buttons))
        return;
    QObject::connect(
        buttons,
        static_cast<void (QButtonGroup::*)(QAbstractButton *, bool)>(&QButtonGroup::buttonToggled),
        context(), [=](QAbstractButton *button, bool checked) {
            if (!checked)
                return;
            const qint64 value = valueOf(buttons, button);
            write(buttons, enumError(), param, value, [=] { return param->SetIntValue(value); });
        });
    finish(param);
}

/// False when a receiver of the signals has ended the binding.
bool OrvCamConfigMapper::checkCurrentButton(Enum *param, QButtonGroup *buttons)
{
    int32_t error = OrvCam::Success;
    const qint64 value = read([&] { return param->GetIntValue(&error); });
    QAbstractButton *button = buttonOf(buttons, value);
    if (error != OrvCam::Success || !button)
        return true;
    note(param, value);
    const Showing showing(*this, buttons);
    const QPointer<QButtonGroup> group(buttons);
    button->setChecked(true);
    return group && !showing.isOver();
}

void OrvCamConfigMapper::updateRadioButtons(Enum *param, QButtonGroup *buttons)
{
    if (!checkCurrentButton(param, buttons))
        return;
    for (uint32_t i = 0; i < param->GetEntryCount(); ++i) {
        const EnumEntry *entry = param->GetEntry(i);
        if (QAbstractButton *button = entry ? buttonOf(buttons, entry->GetValue()) : nullptr)
            button->setEnabled(read([=] { return entry->IsAvailable(); }));
    }
}

void OrvCamConfigMapper::mapEnumParam(Enum *param, QTabWidget *tabs)
{
    if (!begin(param, {{MapEnumTabs, tabs, nullptr}}))
        return;
    fitTabCount(tabs, static_cast<int>(param->GetEntryCount()));
    QHash<QString, int> tabOf;
    for (int i = 0; i < tabs->count(); ++i) {
        const EnumEntry *entry = entryAt(param, i);
        if (entry) {
            tabs->setTabText(i, cameraText(symbolicOf(entry), LongestName));
            tabOf.insert(symbolicOf(entry), i);
        } else {
            tabs->widget(i)->hide();
        }
    }
    m_tabs.insert(nameOf(param), tabOf);
    updateTabWidget(param, tabs);
    QObject::connect(tabs, &QTabWidget::currentChanged, context(), [=](int index) {
        if (index < 0)
            return;
        const QString entry = tabs->tabText(index);
        write(tabs, enumError(), param, entry,
              [=] { return param->SetSymbolicValue(entry.toUtf8().constData()); });
    });
    finish(param);
}

/// Removes surplus tabs, after those that a former enumeration had no entries for are back.
void OrvCamConfigMapper::fitTabCount(QTabWidget *tabs, int entries)
{
    QVector<QPointer<QWidget>> &removed = m_state->removedPages[tabs];
    while (!removed.isEmpty()) {
        if (QWidget *page = removed.takeLast())
            tabs->addTab(page, QString());
    }
    while (tabs->count() > entries) {
        const int last = tabs->count() - 1;
        removed.append(tabs->widget(last));
        tabs->widget(last)->hide();
        tabs->removeTab(last);
    }
}

void OrvCamConfigMapper::updateTabWidget(Enum *param, QTabWidget *tabs)
{
    const QHash<QString, int> tabOf = m_tabs.value(nameOf(param));
    const QString current = read([=] { return QString::fromUtf8(param->GetSymbolicValue()); });
    {
        const Showing showing(*this, tabs);
        if (tabOf.contains(current))
            tabs->setCurrentIndex(tabOf.value(current));
        if (showing.isOver())
            return;
    }
    for (int i = 0; i < tabs->count(); ++i) {
        const EnumEntry *entry = entryAt(param, i);
        if (QWidget *page = entry ? tabs->widget(tabOf.value(symbolicOf(entry), -1)) : nullptr)
            page->setEnabled(read([=] { return entry->IsAvailable(); }));
    }
}

void OrvCamConfigMapper::mapCommandParam(Command *param, QPushButton *button, QTimer *timer)
{
    if (!begin(param, {{MapCommandButton, button, nullptr}}))
        return;
    QObject::connect(button, &QPushButton::clicked, context(), [=] {
        const QString error = tr("Error while executing the %1 command!\r\nError Code: %2");
        const QPointer<QTimer> guardedTimer(timer);
        const QPointer<QPushButton> guardedButton(button);
        write(button, error, param, QVariant(), [=] {
            const qint32 code = param->Execute(); // may notify, and whoever listens do anything
            if (guardedTimer && guardedButton) {
                guardedButton->setEnabled(false);
                guardedTimer->start();
            }
            return code;
        });
    });
    finish(param);
}

void OrvCamConfigMapper::mapBooleanParam(Boolean *param, QAbstractButton *button)
{
    const OrvCamConfigMapData record{MapBooleanButton, button, nullptr};
    if (!begin(param, {record}))
        return;
    show(record, param);
    QObject::connect(button, &QAbstractButton::clicked, context(), [=](bool checked) {
        const QString error = tr("Error while setting the %1 boolean value!\r\nError Code: %2");
        write(button, error, param, checked, [=] { return param->SetValue(checked); });
    });
    finish(param);
}

void OrvCamConfigMapper::mapIntParam(Int *param, QLineEdit *lineEdit)
{
    if (!begin(param, {{MapIntLineEdit, lineEdit, nullptr}}))
        return;
    showText(param, lineEdit);
    QObject::connect(lineEdit, &QLineEdit::editingFinished, context(), [=] {
        bool ok = false;
        const int value = lineEdit->text().toInt(&ok);
        if (!ok || !lineEdit->isModified())
            return;
        lineEdit->setModified(false); // an error box takes the focus, which finishes once more
        writeInt(lineEdit, param, value, nullptr);
    });
    finish(param);
}

void OrvCamConfigMapper::showText(Int *param, QLineEdit *lineEdit)
{
    int32_t error = OrvCam::Success;
    const auto *validator = qobject_cast<const QIntValidator *>(lineEdit->validator());
    const auto ask = [&](int64_t (Int::*get)(int32_t *) const) -> qint64 {
        return read([&] { return (param->*get)(&error); });
    };
    const qint64 min = validator ? ask(&Int::GetMin) : 0;
    const qint64 max = validator && error == OrvCam::Success ? ask(&Int::GetMax) : 0;
    if (validator && error == OrvCam::Success) {
        const int bottom = ValueGrid::toInt(min);
        const int top = ValueGrid::toInt(qMin(max, m_valueCap));
        const_cast<QIntValidator *>(validator)->setRange(bottom, top);
        int32_t ignored = OrvCam::Success;
        const qint64 step = read([&] { return param->GetInc(&ignored); });
        FeatureToolTip::set(lineEdit, FeatureToolTip::text(param, {bottom, top, step}, true));
    }
    const qint64 value = ask(&Int::GetValue);
    if (error == OrvCam::Success)
        note(param, value);
    const bool isTyping = lineEdit->hasFocus() && lineEdit->isModified();
    if (error == OrvCam::Success && !isTyping)
        lineEdit->setText(QString::number(qMin(value, m_valueCap)));
}

void OrvCamConfigMapper::mapIntParam(Int *param, QSpinBox *spinBox)
{
    if (!begin(param, {{MapIntSpinBox, spinBox, nullptr}}))
        return;
    spinBox->setKeyboardTracking(false);
    showNumber(param, spinBox, nullptr);
    QObject::connect(spinBox, static_cast<void (QSpinBox::*)(int)>(&QSpinBox::valueChanged),
                     context(), [=](int value) { writeInt(spinBox, param, value, nullptr); });
    finish(param);
}

void OrvCamConfigMapper::mapIntParam(Int *param, QSlider *slider,
                                     IOrvCamConfigIntConverter *converter)
{
    if (!begin(param, {{MapIntSlider, slider, converter}}))
        return;
    showNumber(param, slider, converter);
    QObject::connect(slider, &QSlider::valueChanged, context(), [=](int value) {
        if (!slider->isSliderDown())
            writeInt(slider, param, value, converter);
    });
    onDragged(
        slider, [=] { return slider->value(); },
        [=] { writeInt(slider, param, slider->value(), converter); },
        [=](What what) { return showNumber(param, slider, converter, what); });
    finish(param);
}

void OrvCamConfigMapper::mapIntParam(Int *param, QtOrvSpinBox *spinBox)
{
    QVector<QWidget *> none;
    mapIntParam(param, spinBox, none);
}

bool OrvCamConfigMapper::mapIntParam(Int *param, QtOrvSpinBox *spinBox,
                                     QVector<QWidget *> &dependents)
{
    Records records{{MapIntOrvSpinBox, spinBox, nullptr}};
    for (QWidget *dependent : dependents)
        records.append({MapDependent, dependent, nullptr});
    if (!begin(param, records))
        return false;
    bindCompound(param, spinBox, nullptr);
    return true;
}

void OrvCamConfigMapper::mapIntParam(Int *param, QtOrvSliderSpinBox *spinBox,
                                     IOrvCamConfigIntConverter *converter)
{
    if (begin(param, {{MapIntOrvSliderSpinBox, spinBox, converter}}))
        bindCompound(param, spinBox, converter);
}

template<class Compound>
void OrvCamConfigMapper::bindCompound(Int *param, Compound *widget,
                                      IOrvCamConfigIntConverter *converter)
{
    widget->setValidate(true);
    widget->setValidateTyping(false);
    showNumber(param, widget, converter);
    QObject::connect(widget, static_cast<void (Compound::*)(int)>(&Compound::valueChanged),
                     context(), [=](int value) { writeInt(widget, param, value, converter); });
    // The widget says nothing about a drag. Its end is announced here, to all who listen.
    const auto announce = [=] {
        const int value = widget->spinBox()->doValidation(widget->value());
        if (value != widget->value()) {
            widget->setValue(value);
        } else {
            emit widget->valueChanged(widget->spinBox()->text());
            emit widget->valueChanged(value);
        }
    };
    onDragged(
        widget->slider(), [=] { return widget->value(); }, announce,
        [=](What what) { return showNumber(param, widget, converter, what); });
    finish(param);
}

template<class Slider>
void OrvCamConfigMapper::onDragged(Slider *slider, const std::function<int()> &value,
                                   const std::function<void()> &changed,
                                   const std::function<bool(What)> &show)
{
    HeldInput::onDragEnd(slider, context(), value, [=](bool isChanged) {
        if (!isChanged) {
            show(Everything);
            return;
        }
        const std::shared_ptr<State> state = m_state;
        const QPointer<Slider> dragged(slider);
        const bool isStillBound = show(LimitsAroundValue); // others, maybe, since the drag began
        if (isStillBound && state->context && dragged && dragged->isEnabled())
            changed();
    });
}

template<class Widget>
bool OrvCamConfigMapper::showNumber(Int *param, Widget *widget,
                                    IOrvCamConfigIntConverter *converter, What what)
{
    if (HeldInput::isDrag(widget))
        return true; // its end shows or writes the value

    const auto shown = [=](int64_t number) {
        return converter ? converter->ToControl(static_cast<long>(number), param) : number;
    };
    const auto capped = [=](qint64 number) { return ValueGrid::toInt(qMin(number, m_valueCap)); };

    // All is read before anything is shown: what listens to the widget may write.
    int32_t limitsError = OrvCam::Success;
    int32_t maxError = OrvCam::Success;
    int32_t incError = OrvCam::Success;
    int32_t valueError = OrvCam::Success;
    const auto ask = [=](int64_t (Int::*get)(int32_t *) const, int32_t &error) {
        return read([=, &error] { return (param->*get)(&error); });
    };
    const int min = ValueGrid::toInt(qint64(shown(ask(&Int::GetMin, limitsError))));
    const int max = capped(shown(ask(&Int::GetMax, maxError)));
    const int step = ValueGrid::toInt(qint64(shown(ask(&Int::GetInc, incError))));
    const bool isKept = what == LimitsAroundValue;
    const qint64 held = isKept ? 0 : ask(&Int::GetValue, valueError);
    const int value = isKept ? widget->value() : capped(shown(held));
    if (isKept && (value < min || value > max))
        return true;
    if (!isKept && valueError == OrvCam::Success)
        note(param, held);

    const Showing showing(*this, widget);
    if (limitsError == OrvCam::Success && maxError == OrvCam::Success) {
        // Setting what is set already would end a step that the user holds, or undo their typing.
        if (widget->minimum() != min || widget->maximum() != max)
            widget->setRange(min, max);
        const int validStep = step ? step : 1;
        if (!showing.isOver() && widget->singleStep() != validStep)
            widget->setSingleStep(validStep);
        if (!showing.isOver())
            FeatureToolTip::set(
                widget, FeatureToolTip::text(param, {min, max, validStep}, converter == nullptr));
    }
    if (valueError == OrvCam::Success && !showing.isOver() && widget->value() != value)
        widget->setValue(value);
    return !showing.isOver();
}

void OrvCamConfigMapper::updateSpinBox(Int *param, QtOrvSpinBox *spinBox)
{
    showNumber(param, spinBox, nullptr);
}

void OrvCamConfigMapper::updateSliderSpinBox(Int *param, QtOrvSliderSpinBox *spinBox,
                                             IOrvCamConfigIntConverter *converter)
{
    showNumber(param, spinBox, converter);
}

void OrvCamConfigMapper::showBoundTo(const QObject *control)
{
    for (auto it = m_bindings.constBegin(); it != m_bindings.constEnd(); ++it) {
        for (const Binding &binding : it.value()) {
            const OrvCamConfigMapData record = binding.alive();
            if (record.control != control && groupOf(record) != control)
                continue;
            show(record, m_params.value(it.key()));
            return;
        }
    }
}

void OrvCamConfigMapper::show(const OrvCamConfigMapData &record, Param *param)
{
    QWidget *control = record.control;
    switch (record.type) {
    case MapEnumComboBox:
        return with<Enum, QComboBox>(param, control,
                                     [=](auto *p, auto *widget) { updateComboBox(p, widget); });
    case MapEnumCheckBox:
        return with<Enum, QCheckBox>(param, control, [this](auto *p, auto *widget) {
            int32_t error = OrvCam::Success;
            const qint64 value = this->read([&] { return p->GetIntValue(&error); });
            if (error != OrvCam::Success)
                return;
            this->note(p, value);
            widget->setChecked(value != 0);
        });
    case MapEnumButtons:
        return with<Enum, QButtonGroup>(param, groupOf(record), [=](auto *p, auto *buttons) {
            updateRadioButtons(p, buttons);
        });
    case MapEnumTabs:
        return with<Enum, QTabWidget>(param, control,
                                      [=](auto *p, auto *widget) { updateTabWidget(p, widget); });
    case MapBooleanButton:
        return with<Boolean, QAbstractButton>(param, control, [this](auto *p, auto *widget) {
            int32_t error = OrvCam::Success;
            const bool on = this->read([&] { return p->GetValue(&error); });
            if (error != OrvCam::Success)
                return;
            this->note(p, on);
            widget->setChecked(on);
        });
    case MapIntLineEdit:
        return with<Int, QLineEdit>(param, control,
                                    [=](auto *p, auto *widget) { showText(p, widget); });
    case MapIntSpinBox:
        return with<Int, QSpinBox>(param, control,
                                   [=](auto *p, auto *widget) { showNumber(p, widget, nullptr); });
    case MapIntOrvSpinBox:
        return with<Int, QtOrvSpinBox>(param, control,
                                       [=](auto *p, auto *widget) { updateSpinBox(p, widget); });
    case MapIntSlider:
        return with<Int, QSlider>(param, control, [&](auto *p, auto *widget) {
            showNumber(p, widget, converterOf(record));
        });
    case MapIntOrvSliderSpinBox:
        return with<Int, QtOrvSliderSpinBox>(param, control, [&](auto *p, auto *widget) {
            updateSliderSpinBox(p, widget, converterOf(record));
        });
    default:
        return; // commands and dependents show no value
    }
}

} // namespace OrvGui

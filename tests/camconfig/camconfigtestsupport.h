// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <cameraapi/nodemaparray.h>
#include <fakecameras.h>
#include <simulatednodemap.h>

#include <QtTest>
#include <QtWidgets>

#include <memory>

/// The widget or action of that name, which must exist.
template<class T = QWidget>
T *part(const QWidget &window, const QByteArray &name)
{
    T *found = window.findChild<T *>(QLatin1String(name));
    if (!found)
        qFatal("There is no %s", name.constData());
    return found;
}

inline void throwRefusal()
{
    throw GenICam::AccessException("no", __FILE__, __LINE__);
}

/// Types a number into a spin box, or into the one that the widget contains.
inline void type(QWidget *widget, const QString &number, bool enter = true)
{
    auto *spinBox = qobject_cast<QAbstractSpinBox *>(widget);
    if (!spinBox)
        spinBox = widget->findChild<QAbstractSpinBox *>();
    spinBox->setFocus();
    spinBox->selectAll();
    QTest::keyClicks(spinBox, number);
    if (enter)
        QTest::keyClick(spinBox, Qt::Key_Return);
}

/// Clicks where check boxes and radio buttons have their marks.
inline void click(QWidget *button)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

/// Turns the wheel down by one notch.
inline void scroll(QWidget *widget)
{
    const QPointF point = widget->rect().center();
    QWheelEvent event(point, widget->mapToGlobal(point.toPoint()), {}, QPoint(0, -120),
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // otherwise it does not propagate
    qApp->notify(widget, &event);
}

/// The centre of the slider's handle.
inline QPoint handleOf(const QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = option.sliderValue = slider->value();
    option.upsideDown = slider->orientation() == Qt::Vertical;
    return slider->style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider)
        .center();
}

/// Presses the left button and drags it by `step`, `count` times. The button stays pressed.
inline void dragBy(
    QSlider *slider, QPoint from, QPoint step, int count,
    const std::function<void()> &afterEach = [] {})
{
    QTest::mousePress(slider, Qt::LeftButton, {}, from);
    for (int i = 1; i <= count; ++i) {
        QMouseEvent move(QEvent::MouseMove, from + i * step, Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(slider, &move);
        afterEach();
    }
}

/// Closes error boxes as a user would, and records their texts. Each stays open for `closeDelay`
/// (ms), so that timers and notifications run.
class ErrorBoxes : public QObject
{
public:
    explicit ErrorBoxes(int closeDelay = 0)
    {
        m_timer.setInterval(2);
        connect(&m_timer, &QTimer::timeout, this, [=] { look(closeDelay); });
        m_timer.start();
    }

    QStringList texts;
    std::function<void()> whileOpen = [] {}; ///< called while a box is open

private:
    void look(int closeDelay)
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || box->property("seen").toBool())
            return;
        box->setProperty("seen", true);
        if (box->windowTitle() != QString() || box->icon() != QMessageBox::Critical ||
            box->standardButtons() != QMessageBox::Ok || box->parent())
            qFatal("Not the error box that was agreed upon");
        texts << box->text();
        whileOpen();
        QTimer::singleShot(closeDelay, box, &QDialog::accept);
    }

    QTimer m_timer;
};

/// A device with the parameters of a node map, or with an error in place of parameters.
class NodeMapDevice : public FakeDevice
{
public:
    explicit NodeMapDevice(GenApi::INodeMap &nodeMap)
        : array(new OrvGenParam::NodeMapArray(nodeMap))
    {
    }

    OrvGenParam::Array *GetParamArray(int32_t *code) override
    {
        ++asked;
        *code = error;
        return array.get();
    }
    bool IsConnected() const override { return array != nullptr; }
    void Release() override
    {
        if (array)
            array->detach(OrvCam::ErrorGone);
        array.reset();
    }

    std::unique_ptr<OrvGenParam::NodeMapArray> array;
    int32_t error = OrvCam::Success;
    int asked = 0;
};

/// A number that counts its registered sinks.
class CountedInt final : public OrvGenParam::Int
{
public:
    explicit CountedInt(const QByteArray &name) : m_name(name) {}

    QSet<OrvGenParam::ParamEventSink *> sinks;

    const char *GetName() const override { return m_name.constData(); }
    const char *GetDisplayName() const override { return m_name.constData(); }
    const char *GetDescription() const override { return ""; }
    const char *GetUnit() const override { return ""; }
    OrvGenParam::ParamType GetType() const override { return OrvGenParam::ParamInt; }
    bool IsAvailable() const override { return true; }
    bool IsReadable() const override { return true; }
    bool IsWritable() const override { return true; }
    void RegisterEventSink(OrvGenParam::ParamEventSink *sink) override { sinks.insert(sink); }
    void UnregisterEventSink(OrvGenParam::ParamEventSink *sink) override { sinks.remove(sink); }
    int64_t GetValue(int32_t *) const override { return 1; }
    int32_t SetValue(int64_t) override { return 0; }
    int64_t GetMin(int32_t *) const override { return 0; }
    int64_t GetMax(int32_t *) const override { return 9; }
    int64_t GetInc(int32_t *) const override { return 1; }

private:
    const QByteArray m_name;
};

/// The parameters of another array, but some are missing and one is replaced.
class PartialArray : public OrvGenParam::Array
{
public:
    QSet<QByteArray> missing;
    CountedInt *counted = nullptr;
    OrvGenParam::Array *all = nullptr;

    uint32_t GetCount() const override { return all->GetCount(); }
    OrvGenParam::Param *GetParam(uint32_t i) const override { return all->GetParam(i); }
    OrvGenParam::Param *GetParam(const char *n) const override
    {
        return isCounted(n) ? counted : has(n, all->GetParam(n));
    }
    OrvGenParam::Int *GetInt(const char *n) const override
    {
        return isCounted(n) ? counted : has(n, all->GetInt(n));
    }
    OrvGenParam::Float *GetFloat(const char *n) const override { return has(n, all->GetFloat(n)); }
    OrvGenParam::Enum *GetEnum(const char *n) const override { return has(n, all->GetEnum(n)); }
    OrvGenParam::Boolean *GetBoolean(const char *n) const override
    {
        return has(n, all->GetBoolean(n));
    }
    OrvGenParam::Command *GetCommand(const char *n) const override
    {
        return has(n, all->GetCommand(n));
    }
    OrvGenParam::String *GetString(const char *n) const override
    {
        return has(n, all->GetString(n));
    }
    int64_t GetIntegerValue(const char *n, int32_t *error) const override
    {
        return all->GetIntegerValue(n, error);
    }
    int32_t SetIntegerValue(const char *n, int64_t value) override
    {
        return all->SetIntegerValue(n, value);
    }
    int32_t ExecuteCommand(const char *n) override { return all->ExecuteCommand(n); }
    GenApi::INodeMap *GetNodeMap(int32_t *error) const override { return all->GetNodeMap(error); }

private:
    bool isCounted(const QByteArray &name) const { return counted && name == counted->GetName(); }
    template<class Kind>
    Kind *has(const char *name, Kind *param) const
    {
        return missing.contains(name) ? nullptr : param;
    }
};

class PartialDevice : public NodeMapDevice
{
public:
    using NodeMapDevice::NodeMapDevice;
    OrvGenParam::Array *GetParamArray(int32_t *code) override
    {
        part.all = NodeMapDevice::GetParamArray(code);
        return part.all ? &part : nullptr;
    }
    PartialArray part;
};

/// A camera and access to its node map.
struct DescribedDevice
{
    explicit DescribedDevice(std::unique_ptr<OrvDescription::NodeMap> nodeMap)
        : map(std::move(nodeMap)), device(*map)
    {
    }

    /// Changes a feature like another client, of whose writes the camera notifies this one.
    void set(const QByteArray &feature, const QByteArray &value)
    {
        try {
            GenApi::CValuePtr(map->GetNode(feature.constData()))->FromString(value.constData());
        } catch (const GenICam::GenericException &e) {
            QTest::qFail(e.what(), __FILE__, __LINE__);
        }
    }
    QString get(const QByteArray &feature) const
    {
        return GenApi::CValuePtr(map->GetNode(feature.constData()))->ToString().c_str();
    }

    /// The number of all writes to the camera since it was created.
    quint64 writes() const { return map->transactions().writes; }

    std::unique_ptr<OrvDescription::NodeMap> map;
    PartialDevice device;
};

struct SimulatedDeviceCamera
{
    OrvSimulation::SimulatedCamera camera;
};

/// The simulated camera as a device, with its node map and parameters.
struct SimulatedDevice : SimulatedDeviceCamera, DescribedDevice
{
    SimulatedDevice() : DescribedDevice(openNodeMap(camera)) {}
};

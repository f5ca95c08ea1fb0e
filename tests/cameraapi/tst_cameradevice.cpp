// SPDX-License-Identifier: MIT
#include "cameratestsupport.h"
#include "plug.h"

#include <cameraapi/cameradevice.h>
#include <genapi/memorynodemap.h>

#include <QtTest>

#include <atomic>
#include <functional>
#include <mutex>

using namespace OrvCam;

namespace {

/// A camera that can be unplugged: what its connections and connector ask.
struct World
{
    Plug isPlugged;
    std::atomic<int> closed{0};
    std::function<void(OrvGenApi::MemoryNodeMap &)> furnish = [](auto &) {};
};

class Connection final : public CameraConnection
{
public:
    explicit Connection(World &world) : m_world(world)
    {
        m_map.addInteger("Width", 640);
        m_map.addCommand("AcquisitionStart");
        m_world.furnish(m_map);
    }
    ~Connection() override { ++m_world.closed; }

    GenApi::INodeMap &nodeMap() override { return m_map; }
    void setListener(OrvCameraIo::RegisterIoListener *listener) override
    {
        m_world.isPlugged.setListener(listener);
    }

private:
    World &m_world;
    OrvGenApi::MemoryNodeMap m_map;
};

class Connector final : public CameraConnector
{
public:
    explicit Connector(World &world) : m_world(world) {}

    std::unique_ptr<CameraConnection> open(int32_t, const OpenProgress &, int32_t &error) override
    {
        error = m_world.isPlugged ? Success : ErrorGone;
        return error == Success ? std::make_unique<Connection>(m_world) : nullptr;
    }

private:
    World &m_world;
};

class Info final : public DeviceInfo
{
public:
    const char *GetDisplayName() const override { return "Camera"; }
    const char *GetVendor() const override { return nullptr; }
    const char *GetModel() const override { return nullptr; }
    const char *GetSerial() const override { return nullptr; }
    const char *GetVersionText() const override { return nullptr; }
    const char *GetUserName() const override { return nullptr; }
    int32_t GetAccessState() const override { return AccessReadWrite; }
    Interface *GetInterface() const override { return nullptr; }
    const char *GetId() const override { return "1"; }
};

/// Collects event codes.
struct Events
{
    Events() = default;
    explicit Events(Device &device)
    {
        device.RegisterEvent(EventDisconnected, note, this);
        device.RegisterEvent(EventReconnected, note, this);
    }

    static void note(int32_t code, void *context)
    {
        auto *self = static_cast<Events *>(context);
        const std::lock_guard<std::mutex> lock(self->mutex);
        self->codes.push_back(code);
    }

    std::vector<int32_t> seen()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return codes;
    }

    std::mutex mutex;
    std::vector<int32_t> codes;
};

} // namespace

class TestCameraDevice : public QObject
{
    Q_OBJECT

private slots:
    void openAndClose();
    void unplugAndReplug();
    void registrations();
    void unregisteringWaits();
    void polling();

private:
    Released<Device> open(World &world, int32_t accessMode = AccessControl)
    {
        int32_t error = Success;
        return Released<Device>(CameraDevice::open(
            nullptr, m_info, std::make_shared<Connector>(world), accessMode, error));
    }

    Info m_info;
};

void TestCameraDevice::openAndClose()
{
    World world;
    Released<Device> device = open(world);
    QVERIFY(device && device->IsConnected());
    QCOMPARE(device->GetDeviceInfo(), static_cast<DeviceInfo *>(&m_info));
    int32_t error = ErrorFailed;
    OrvGenParam::Array *array = device->GetParamArray(&error);
    QCOMPARE(error, int32_t(Success));
    QCOMPARE(array->GetIntegerValue("Width"), int64_t(640));
    QCOMPARE(array->SetIntegerValue("Width", 320), int32_t(Success));
    device.reset();
    QCOMPARE(world.closed.load(), 1);

    const Released<Device> monitor = open(world, AccessMonitor);
    array = monitor->GetParamArray();
    QVERIFY(array->GetInt("Width")->IsReadable() && !array->GetInt("Width")->IsWritable());
    QCOMPARE(array->SetIntegerValue("Width", 320), int32_t(ErrorAccessDenied));
    QVERIFY(array->ExecuteCommand("AcquisitionStart") != Success);
}

void TestCameraDevice::unplugAndReplug()
{
    World world;
    Released<Device> device = open(world);
    Events events(*device);
    OrvGenParam::Array *array = device->GetParamArray();
    OrvGenParam::Int *width = array->GetInt("Width");

    for (int round = 0; round < 3; ++round) {
        world.isPlugged = false;
        QTRY_COMPARE(events.seen().size(), size_t(2 * round + 1));
        QCOMPARE(events.seen().back(), int32_t(EventDisconnected));
        QVERIFY(!device->IsConnected());
        int32_t error = Success;
        QVERIFY(!device->GetParamArray(&error));
        QCOMPARE(error, int32_t(ErrorGone));
        QCOMPARE(width->GetValue(&error), int64_t(0));
        QCOMPARE(error, int32_t(ErrorGone));
        QCOMPARE(width->SetValue(8), int32_t(ErrorGone));
        QVERIFY(!width->IsAvailable());
        QCOMPARE(width->GetName(), "Width");

        // What was handed out goes on with the camera.
        world.isPlugged = true;
        QTRY_COMPARE(events.seen().size(), size_t(2 * round + 2));
        QCOMPARE(events.seen().back(), int32_t(EventReconnected));
        QVERIFY(device->IsConnected());
        QCOMPARE(device->GetParamArray(), array);
        QCOMPARE(width->GetValue(&error), int64_t(640));
        QCOMPARE(error, int32_t(Success));
    }
    QCOMPARE(world.closed.load(), 0);
    device.reset();
    QCOMPARE(world.closed.load(), 1);
}

void TestCameraDevice::registrations()
{
    World world;
    Events events;
    Events others;
    const Released<Device> device = open(world);
    QCOMPARE(device->RegisterEvent(EventDisconnected, Events::note, &events), int32_t(Success));
    QCOMPARE(device->RegisterEvent(EventDisconnected, Events::note, &events),
             int32_t(ErrorInvalidArgument));
    QCOMPARE(device->RegisterEvent(EventDisconnected, Events::note, &others), int32_t(Success));
    QCOMPARE(device->RegisterEvent(EventReconnected, nullptr, &events),
             int32_t(ErrorInvalidArgument));
    QCOMPARE(device->RegisterEvent(4711, Events::note, &events), int32_t(ErrorInvalidArgument));
    QCOMPARE(device->UnregisterEvent(EventReconnected, Events::note, &events),
             int32_t(ErrorNotFound));
    QCOMPARE(device->UnregisterEvent(EventDisconnected, Events::note, &events), int32_t(Success));
    QCOMPARE(device->UnregisterEvent(EventDisconnected, Events::note, &events),
             int32_t(ErrorNotFound));
    world.isPlugged = false;
    QTRY_COMPARE(others.seen(), std::vector<int32_t>{EventDisconnected});
    QVERIFY(events.seen().empty());
}

void TestCameraDevice::unregisteringWaits()
{
    struct Slow
    {
        Device *device = nullptr;
        std::atomic<bool> isRunning{false};

        static void dawdle(int32_t code, void *context)
        {
            auto *self = static_cast<Slow *>(context);
            self->isRunning = true;
            QThread::msleep(50);
            // Taking oneself out from inside is allowed.
            self->device->UnregisterEvent(code, dawdle, context);
            self->isRunning = false;
        }
        static void other(int32_t, void *) {}
    };
    World world;
    Slow slow;
    const Released<Device> device = open(world);
    slow.device = device.get();
    device->RegisterEvent(EventDisconnected, Slow::dawdle, &slow);
    device->RegisterEvent(EventDisconnected, Slow::other, &slow);
    world.isPlugged = false;
    while (!slow.isRunning)
        QThread::usleep(100);
    device->UnregisterEvent(EventDisconnected, Slow::other, &slow);
    QVERIFY(!slow.isRunning);
    QCOMPARE(device->UnregisterEvent(EventDisconnected, Slow::dawdle, &slow),
             int32_t(ErrorNotFound));
}

void TestCameraDevice::polling()
{
    World world;
    std::atomic<int> temperature{20};
    world.furnish = [&](OrvGenApi::MemoryNodeMap &map) {
        auto &node = map.addInteger("Temperature");
        node.bind([&] { return temperature.load(); });
        node.properties().pollingTime = 100;
    };
    class Sink : public OrvGenParam::ParamEventSink
    {
    public:
        void OnParameterUpdate(OrvGenParam::Param *) override { ++count; }
        int count = 0;
    };
    Sink sink;
    const Released<Device> device = open(world);
    OrvGenParam::Int *param = device->GetParamArray()->GetInt("Temperature");
    param->RegisterEventSink(&sink);
    QCOMPARE(param->GetValue(), int64_t(20));
    temperature = 21;
    QCOMPARE(param->GetValue(), int64_t(20)); // kept until it is polled
    QTRY_COMPARE(param->GetValue(), int64_t(21));
    QVERIFY(sink.count > 0);

    // An unplugged camera is polled no more; it tells its sinks once that it has gone.
    world.isPlugged = false;
    QTRY_VERIFY(!device->IsConnected());
    QTest::qWait(50);
    const int count = sink.count;
    QTest::qWait(300);
    QCOMPARE(sink.count, count);
}

QTEST_GUILESS_MAIN(TestCameraDevice)
#include "tst_cameradevice.moc"

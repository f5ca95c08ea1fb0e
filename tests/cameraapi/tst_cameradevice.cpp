// SPDX-License-Identifier: MIT
#include "cameratestsupport.h"
#include "fakecameras.h"
#include "pluggablecamera.h"

#include <QtTest>

#include <atomic>

using namespace OrvCam;

namespace {

/// A camera with a number and a command.
struct Camera : PluggableCamera
{
    Camera() : PluggableCamera("Camera")
    {
        furnish = [](OrvGenApi::MemoryNodeMap &map) {
            map.addInteger("Width", 640);
            map.addCommand("AcquisitionStart");
        };
    }
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
    Released<Device> open(PluggableCamera &camera, int32_t accessMode = AccessControl)
    {
        int32_t error = Success;
        return Released<Device>(CameraDevice::open(
            nullptr, m_info, std::make_shared<PluggableCamera::Connector>(camera), accessMode,
            error));
    }

    FakeCamera m_info;
};

void TestCameraDevice::openAndClose()
{
    Camera camera;
    Released<Device> device = open(camera);
    QVERIFY(device && device->IsConnected());
    QCOMPARE(device->GetDeviceInfo(), static_cast<DeviceInfo *>(&m_info));
    int32_t error = ErrorFailed;
    OrvGenParam::Array *array = device->GetParamArray(&error);
    QCOMPARE(error, int32_t(Success));
    QCOMPARE(array->GetIntegerValue("Width"), int64_t(640));
    QCOMPARE(array->SetIntegerValue("Width", 320), int32_t(Success));
    device.reset();
    QCOMPARE(camera.closed.load(), 1);

    const Released<Device> monitor = open(camera, AccessMonitor);
    array = monitor->GetParamArray();
    QVERIFY(array->GetInt("Width")->IsReadable() && !array->GetInt("Width")->IsWritable());
    QCOMPARE(array->SetIntegerValue("Width", 320), int32_t(ErrorAccessDenied));
    QVERIFY(array->ExecuteCommand("AcquisitionStart") != Success);
}

void TestCameraDevice::unplugAndReplug()
{
    Camera camera;
    Released<Device> device = open(camera);
    Events events(*device);
    OrvGenParam::Array *array = device->GetParamArray();
    OrvGenParam::Int *width = array->GetInt("Width");

    for (int round = 0; round < 3; ++round) {
        camera.isPlugged = false;
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

        // Objects from before the interruption work again.
        camera.isPlugged = true;
        QTRY_COMPARE(events.seen().size(), size_t(2 * round + 2));
        QCOMPARE(events.seen().back(), int32_t(EventReconnected));
        QVERIFY(device->IsConnected());
        QCOMPARE(device->GetParamArray(), array);
        QCOMPARE(width->GetValue(&error), int64_t(640));
        QCOMPARE(error, int32_t(Success));
    }
    QCOMPARE(camera.closed.load(), 0);
    device.reset();
    QCOMPARE(camera.closed.load(), 1);
}

void TestCameraDevice::registrations()
{
    Camera camera;
    Events events;
    Events others;
    const Released<Device> device = open(camera);
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
    camera.isPlugged = false;
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
            // A callback may unregister itself.
            self->device->UnregisterEvent(code, dawdle, context);
            self->isRunning = false;
        }
        static void other(int32_t, void *) {}
    };
    Camera camera;
    Slow slow;
    const Released<Device> device = open(camera);
    slow.device = device.get();
    device->RegisterEvent(EventDisconnected, Slow::dawdle, &slow);
    device->RegisterEvent(EventDisconnected, Slow::other, &slow);
    camera.isPlugged = false;
    while (!slow.isRunning)
        QThread::usleep(100);
    device->UnregisterEvent(EventDisconnected, Slow::other, &slow);
    QVERIFY(!slow.isRunning);
    QCOMPARE(device->UnregisterEvent(EventDisconnected, Slow::dawdle, &slow),
             int32_t(ErrorNotFound));
}

void TestCameraDevice::polling()
{
    Camera camera;
    std::atomic<int> temperature{20};
    camera.furnish = [&](OrvGenApi::MemoryNodeMap &map) {
        auto &node = map.addInteger("Temperature");
        node.bind([&] { return temperature.load(); });
        node.properties().pollingTime = 100;
    };
    CountingSink sink;
    const Released<Device> device = open(camera);
    OrvGenParam::Int *param = device->GetParamArray()->GetInt("Temperature");
    param->RegisterEventSink(&sink);
    QCOMPARE(param->GetValue(), int64_t(20));
    temperature = 21;
    QCOMPARE(param->GetValue(), int64_t(20)); // cached until the next poll
    QTRY_COMPARE(param->GetValue(), int64_t(21));
    QVERIFY(sink.count > 0);

    // An unplugged camera is not polled; its sinks are notified once.
    camera.isPlugged = false;
    QTRY_VERIFY(!device->IsConnected());
    QTest::qWait(50);
    const int count = sink.count;
    QTest::qWait(300);
    QCOMPARE(sink.count, count);
}

QTEST_GUILESS_MAIN(TestCameraDevice)
#include "tst_cameradevice.moc"

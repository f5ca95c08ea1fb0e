// SPDX-License-Identifier: MIT

// Before Qt, whose keywords are names in GLib.
#include <arv.h>

#include <cameratestsupport.h>
#include <orvcameraapi-aravis.h>

#include <QtTest>

#include <atomic>

namespace {

using DevicePtr = OrvCam::Released<OrvCam::Device>;

/// A program that takes images with Aravis, on a thread of its own.
class Host
{
public:
    explicit Host(ArvDevice *device) : m_camera(arv_camera_new_with_device(device, nullptr))
    {
        m_stream = arv_camera_create_stream(m_camera, nullptr, nullptr, nullptr);
        const guint size = arv_camera_get_payload(m_camera, nullptr);
        for (int i = 0; i < 4; ++i)
            arv_stream_push_buffer(m_stream, arv_buffer_new(size, nullptr));
        g_signal_connect(m_stream, "new-buffer", G_CALLBACK(onBuffer), this);
        arv_stream_set_emit_signals(m_stream, TRUE);
        arv_camera_start_acquisition(m_camera, nullptr);
    }

    ~Host()
    {
        arv_camera_stop_acquisition(m_camera, nullptr);
        arv_stream_set_emit_signals(m_stream, FALSE);
        g_object_unref(m_stream);
        g_object_unref(m_camera);
    }

    int images() const { return m_images; }

private:
    static void onBuffer(ArvStream *stream, Host *self)
    {
        ArvBuffer *buffer = arv_stream_pop_buffer(stream);
        self->m_images += arv_buffer_get_status(buffer) == ARV_BUFFER_STATUS_SUCCESS ? 1 : 0;
        arv_stream_push_buffer(stream, buffer);
    }

    ArvCamera *const m_camera;
    ArvStream *m_stream = nullptr;
    std::atomic<int> m_images{0};
};

} // namespace

/// Cameras that a host has opened with Aravis and is grabbing from. The camera is Aravis's own fake
/// one, in another process in a private network namespace.
class TestAdoptedDevice : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void sharedWhileStreaming();
    void releasedInAnyOrder();
    void withoutControl();
    void unplugAndReplug();
    void noDevice();
    void descriptionForOtherPrograms();

private:
    QProcess m_process;
    ArvDevice *m_device = nullptr;
};

void TestAdoptedDevice::init()
{
    m_process.start("arv-fake-gv-camera-0.8", {"--interface=127.0.0.1", "--serial=HOST"});
    QVERIFY(m_process.waitForStarted());
    GInetAddress *address = g_inet_address_new_from_string("127.0.0.1");
    const auto open = [&] {
        if (!m_device)
            m_device = arv_gv_device_new(address, address, nullptr);
        return m_device != nullptr;
    };
    QTRY_VERIFY_WITH_TIMEOUT(open(), 20000);
    g_object_unref(address);
}

void TestAdoptedDevice::cleanup()
{
    g_clear_object(&m_device);
    m_process.kill();
    m_process.waitForFinished();
}

void TestAdoptedDevice::sharedWhileStreaming()
{
    const guint references = G_OBJECT(m_device)->ref_count;
    Host host(m_device);
    QTRY_VERIFY(host.images() > 3);

    DevicePtr device(OrvCam_AdoptArvDevice(m_device, nullptr));
    QVERIFY(device);
    QCOMPARE(OrvCam_GetArvDevice(device.get()), m_device);
    const OrvCam::DeviceInfo *info = device->GetDeviceInfo();
    QCOMPARE(info->GetDisplayName(), "Fake (HOST)");
    QCOMPARE(info->GetVendor(), "Aravis");
    QCOMPARE(info->GetAccessState(), int32_t(OrvCam::AccessReadWrite));
    QCOMPARE(info->GetInterface()->GetTransportKind(), int32_t(OrvCam::TransportGigEVision));

    OrvGenParam::Array *params = device->GetParamArray();
    QVERIFY(params);
    QCOMPARE(params->GetIntegerValue("Width"),
             int64_t(arv_device_get_integer_feature_value(m_device, "Width", nullptr)));
    // Both write and read at full speed; each sees the other's values, and no image is lost.
    const int before = host.images();
    for (int step = 0; step < 24; ++step) {
        const int gain = step % 11;
        QCOMPARE(params->SetIntegerValue("GainRaw", gain), int32_t(OrvCam::Success));
        QCOMPARE(arv_device_get_integer_feature_value(m_device, "GainRaw", nullptr), gint64(gain));
    }
    QTRY_VERIFY(host.images() > before + 3);

    device.reset();
    const int after = host.images();
    QTRY_VERIFY(host.images() > after + 3);
    QVERIFY(arv_gv_device_is_controller(ARV_GV_DEVICE(m_device)));
    QVERIFY(G_OBJECT(m_device)->ref_count >= references);
}

void TestAdoptedDevice::releasedInAnyOrder()
{
    const guint references = G_OBJECT(m_device)->ref_count;
    DevicePtr(OrvCam_AdoptArvDevice(m_device, nullptr)).reset();
    QCOMPARE(G_OBJECT(m_device)->ref_count, references);

    const DevicePtr device(OrvCam_AdoptArvDevice(m_device, nullptr));
    g_clear_object(&m_device);
    QVERIFY(device->GetParamArray()->GetIntegerValue("Width") > 0);
    QVERIFY(OrvCam_GetArvDevice(device.get()));
}

void TestAdoptedDevice::withoutControl()
{
    QVERIFY(arv_gv_device_leave_control(ARV_GV_DEVICE(m_device), nullptr));
    const DevicePtr device(OrvCam_AdoptArvDevice(m_device, nullptr));
    QVERIFY(device);
    QCOMPARE(device->GetDeviceInfo()->GetAccessState(), int32_t(OrvCam::AccessReadOnly));
    QVERIFY(device->GetParamArray()->GetIntegerValue("Width") > 0);
    QCOMPARE(device->GetParamArray()->SetIntegerValue("GainRaw", 3),
             int32_t(OrvCam::ErrorAccessDenied));
}

void TestAdoptedDevice::unplugAndReplug()
{
    DevicePtr device(OrvCam_AdoptArvDevice(m_device, nullptr));
    QVERIFY(device);
    Events events(*device);
    OrvGenParam::Array *params = device->GetParamArray();
    m_process.kill();
    m_process.waitForFinished();

    // Aravis on its own would wait for seconds.
    QElapsedTimer timer;
    timer.start();
    QVERIFY(params->SetIntegerValue("GainRaw", 5) != OrvCam::Success);
    QVERIFY2(timer.elapsed() < 2900, QByteArray::number(timer.elapsed()));
    timer.start();
    QVERIFY(params->SetIntegerValue("GainRaw", 6) != OrvCam::Success);
    QVERIFY2(timer.elapsed() < 50, QByteArray::number(timer.elapsed()));
    QTRY_VERIFY_WITH_TIMEOUT(events.count(OrvCam::EventDisconnected) == 1, 20000);
    QVERIFY(!device->IsConnected());

    m_process.start("arv-fake-gv-camera-0.8", {"--interface=127.0.0.1", "--serial=HOST"});
    const auto takeControl = [this] {
        return arv_gv_device_take_control(ARV_GV_DEVICE(m_device), nullptr);
    };
    QTRY_VERIFY_WITH_TIMEOUT(takeControl(), 20000);
    QTRY_VERIFY_WITH_TIMEOUT(events.count(OrvCam::EventReconnected) == 1, 5000);
    QCOMPARE(device->GetParamArray()->SetIntegerValue("GainRaw", 7), int32_t(OrvCam::Success));

    m_process.kill();
    m_process.waitForFinished();
    timer.start();
    device.reset();
    QVERIFY2(timer.elapsed() < 1500, QByteArray::number(timer.elapsed()));
}

void TestAdoptedDevice::noDevice()
{
    int32_t error = OrvCam::Success;
    QVERIFY(!OrvCam_AdoptArvDevice(nullptr, &error));
    QCOMPARE(error, int32_t(OrvCam::ErrorInvalidArgument));
    QVERIFY(!OrvCam_AdoptArvDevice(nullptr, nullptr));
    QVERIFY(!OrvCam_GetArvDevice(nullptr));

    qputenv("ORVCAM_SIMULATION", "1");
    OrvCam::System *system = OrvCam_GetSystem();
    OrvCam_RefreshDevices(system, 0);
    const DevicePtr other(
        OrvCam_CreateDevice(OrvCam_GetDeviceInfo(system, 0), nullptr, OrvCam::AccessControl));
    QVERIFY(other);
    QVERIFY(!OrvCam_GetArvDevice(other.get()));
    OrvCam_ReleaseSystem(system);
}

/// Another implementation reads the simulated camera's description.
void TestAdoptedDevice::descriptionForOtherPrograms()
{
    g_clear_object(&m_device);
    m_process.kill();
    m_process.waitForFinished();
    m_process.start("arv-fake-gv-camera-0.8",
                    {"--interface=127.0.0.1", "--serial=HOST", "--genicam=" ORV_DESCRIPTION});
    QVERIFY(m_process.waitForStarted());
    QString values;
    const auto read = [&] {
        QProcess tool;
        tool.setProcessChannelMode(QProcess::MergedChannels);
        tool.start("arv-tool-0.8", {"--address=127.0.0.1", "values"});
        tool.waitForFinished(20000);
        values = QString::fromUtf8(tool.readAll());
        return values.contains("'Root'") && values.contains("'GevSCDA'");
    };
    QTRY_VERIFY_WITH_TIMEOUT(read(), 20000);
    QVERIFY2(!values.contains("rror") && !values.contains("ailed"), qPrintable(values));
}

QTEST_GUILESS_MAIN(TestAdoptedDevice)
#include "tst_adopteddevice.moc"

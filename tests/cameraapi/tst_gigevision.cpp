// SPDX-License-Identifier: MIT
#include "cameratestsupport.h"

#include <cameracrowd.h>
#include <cameranetwork.h>
#include <orvgenparamapi.h>

#include <QtTest>

#include <set>

using namespace OrvCam;

/// The functions that use a network. This machine has two adapters, 10.1.0.1 and 10.2.0.1, each
/// with a cable to another machine, 10.1.0.2 and 10.2.0.2, where cameras are started.
class TestGigEVision : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init() { m_system.reset(OrvCam_GetSystem()); }
    void cleanup() { m_system.reset(); }
    void adaptersAndCameras();
    void camerasComeAndGo();
    void badDescription();
    void allAdaptersAtOnce();
    void adapterWithoutLink();
    void adapterWithoutAddress();
    void sharedMacAddress();
    void manyCamerasComeAndGo();
    void malformedAnswers_data();
    void malformedAnswers();
    void wrongSubnetAndForcedIp();
    void forcedIpWithFaults_data();
    void forcedIpWithFaults();
    void forcedIpIsCancelled();
    void unplugAndReplug();

private:
    Interface *interface(const char *adapter);
    DeviceInfo *waitForCamera(const char *adapter, const char *serial);
    Released<Device> open(const char *serial);

    std::unique_ptr<CameraNetwork> m_first;
    std::unique_ptr<CameraNetwork> m_second;
    Released<System> m_system;
};

namespace {

constexpr int waitLimit = 15000;

} // namespace

void TestGigEVision::initTestCase()
{
    m_first = std::make_unique<CameraNetwork>("orv0", "10.1.0.1/24", "10.1.0.2/24");
    m_second = std::make_unique<CameraNetwork>("orv1", "10.2.0.1/24", "10.2.0.2/24");
}

void TestGigEVision::cleanupTestCase()
{
    m_first.reset();
    m_second.reset();
}

Interface *TestGigEVision::interface(const char *adapter)
{
    for (Interface *candidate : interfacesOf(*m_system, InterfaceGigEVision)) {
        if (QByteArray(candidate->GetDescription()).startsWith(adapter))
            return candidate;
    }
    qFatal("There is no adapter %s", adapter);
}

DeviceInfo *TestGigEVision::waitForCamera(const char *adapter, const char *serial)
{
    QElapsedTimer timer;
    timer.start();
    while (!timer.hasExpired(waitLimit)) {
        for (DeviceInfo *camera : camerasOf(*interface(adapter))) {
            if (qstrcmp(camera->GetSerial(), serial) == 0)
                return camera;
        }
    }
    qFatal("The camera %s does not come up", serial);
}

Released<Device> TestGigEVision::open(const char *serial)
{
    Released<Device> device(
        OrvCam_CreateDevice(waitForCamera("orv0", serial), nullptr, AccessControl));
    if (!device)
        qFatal("The camera %s cannot be opened", serial);
    return device;
}

void TestGigEVision::adaptersAndCameras()
{
    const auto first = m_first->startCamera("FIRST");
    const auto second = m_second->startCamera("SECOND");
    waitForCamera("orv0", "FIRST");
    waitForCamera("orv1", "SECOND");

    QCOMPARE(interfacesOf(*m_system).size(),
             size_t(3)); // USB is the last one; loopback is not listed
    QCOMPARE(interfacesOf(*m_system).back()->GetTransportKind(), int32_t(TransportUsb3Vision));
    QVERIFY(camerasOf(*interfacesOf(*m_system).back()).empty());
    int64_t subnet = 0x0A010000;
    for (const char *adapter : {"orv0", "orv1"}) {
        QElapsedTimer timer;
        timer.start();
        const auto cameras = camerasOf(*interface(adapter));
        QVERIFY(timer.elapsed() < 2000);
        QCOMPARE(cameras.size(), size_t(1));
        DeviceInfo *camera = cameras.front();
        QCOMPARE(camera->GetVendor(), "Aravis");
        QCOMPARE(camera->GetModel(), "Fake");
        QVERIFY(!camera->GetUserName());
        QCOMPARE(camera->GetAccessState(), int32_t(AccessReadWrite));

        QProcess ip;
        ip.start("ip", {"-br", "link", "show", adapter});
        QVERIFY(ip.waitForFinished());
        const QByteArray mac = ip.readAllStandardOutput().simplified().split(' ').value(2);
        OrvGenParam::Array *array = interface(adapter)->GetParamArray();
        QCOMPARE(array->GetIntegerValue("GevInterfaceMACAddress"),
                 QByteArray(mac).replace(":", "").toLongLong(nullptr, 16));
        QCOMPARE(array->GetIntegerValue("GevInterfaceSubnetIPAddress"), subnet + 1);
        QCOMPARE(array->GetIntegerValue("GevInterfaceSubnetMask"), int64_t(0xFFFFFF00));
        QCOMPARE(array->SetIntegerValue("DeviceSelector", 0), int32_t(Success));
        QCOMPARE(array->GetIntegerValue("GevDeviceIPAddress"), subnet + 2);
        subnet += 0x10000;

        int32_t error = ErrorFailed;
        const Released<Device> device(OrvCam_CreateDevice(camera, &error, AccessControl));
        QVERIFY(device);
        QCOMPARE(error, int32_t(Success));
        OrvGenParam::Array *features = device->GetParamArray();
        QCOMPARE(features->SetIntegerValue("Width", 256), int32_t(Success));
        QCOMPARE(features->GetIntegerValue("Width"), int64_t(256));
    }
}

void TestGigEVision::camerasComeAndGo()
{
    auto camera = m_first->startCamera("BRIEF");
    DeviceInfo *info = waitForCamera("orv0", "BRIEF");
    camera.reset();

    int32_t error = Success;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!OrvCam_CreateDevice(info, &error, AccessControl));
    QCOMPARE(error, int32_t(ErrorGone));
    QVERIFY(timer.elapsed() < 3000);

    bool changed = false;
    QCOMPARE(interface("orv0")->RefreshDevices(&changed, 200), int32_t(Success));
    QVERIFY(changed);
    QVERIFY(camerasOf(*interface("orv0")).empty());
    QCOMPARE(info->GetSerial(), "BRIEF"); // the record still exists
    OrvGenParam::Array *array = interface("orv0")->GetParamArray();
    QCOMPARE(array->SetIntegerValue("DeviceSelector", 0), int32_t(ErrorNotAvailable));

    camera = m_first->startCamera("BRIEF");
    QCOMPARE(waitForCamera("orv0", "BRIEF"), info);
    interface("orv0")->RefreshDevices(&changed, 200);
    QVERIFY(!changed);
}

void TestGigEVision::badDescription()
{
    const QTemporaryDir directory;
    for (const QByteArray &contents :
         {QByteArray(), QByteArray("<RegisterDescription"), QByteArray("\x89PNG\r\n\x1a\n"),
          QByteArray("<html><body>404</body></html>")}) {
        QFile file(directory.filePath("camera.xml"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(contents);
        file.close();
        const auto camera = m_first->startCamera("BROKEN", file.fileName());
        DeviceInfo *info = waitForCamera("orv0", "BROKEN");
        int32_t error = Success;
        QVERIFY(!OrvCam_CreateDevice(info, &error, AccessControl));
        QCOMPARE(error, int32_t(ErrorBadDescription));

        // The failed opening leaves no connection behind.
        interface("orv0")->RefreshDevices(nullptr, 200);
        QCOMPARE(info->GetAccessState(), int32_t(AccessReadWrite));
    }
}

void TestGigEVision::allAdaptersAtOnce()
{
    TestCamera::Settings settings = m_first->cameraSettings(0x020000000001, "10.1.0.2");
    settings.vendor = "Strawman\xff\xed\xa0\x80"; // the last three encode a surrogate
    settings.userName = "abcdefghijklmnop";       // fills its field
    TestCamera near(settings);
    TestCamera far(m_second->cameraSettings(0x020000000002, "10.2.0.2"));
    near.setPrivilege(2);
    Interface *first = interface("orv0");
    Interface *second = interface("orv1");
    QElapsedTimer timer;
    timer.start();
    const auto cameras = camerasOf(*first);
    QCOMPARE(camerasOf(*second).size(), size_t(1));
    QVERIFY2(timer.elapsed() < 350, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(cameras.size(), size_t(1));
    QCOMPARE(cameras.front()->GetId(), "02:00:00:00:00:01");
    QCOMPARE(cameras.front()->GetAccessState(), int32_t(AccessNone));
    QCOMPARE(cameras.front()->GetUserName(), "abcdefghijklmnop");
    QCOMPARE(cameras.front()->GetVendor(),
             "Strawman\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
    QVERIFY(!cameras.front()->GetSerial());

    // The next enumeration sends a new discovery command.
    far.setMood("silence");
    QVERIFY(camerasOf(*second).empty());
}

void TestGigEVision::adapterWithoutLink()
{
    TestCamera camera(m_first->cameraSettings(0x020000000001, "10.1.0.2"));
    Interface *first = interface("orv0");
    m_first->runFar("ip", "link set orv0-far down");
    m_second->runFar("ip", "link set orv1-far down");
    QElapsedTimer timer;
    timer.start();
    QVERIFY(camerasOf(*first).empty());
    QVERIFY2(timer.elapsed() < 100, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(first->GetDescription(), "orv0 (10.1.0.1, not connected)");
    m_first->runFar("ip", "link set orv0-far up");
    m_second->runFar("ip", "link set orv1-far up");
    QTRY_COMPARE(camerasOf(*first).size(), size_t(1));
    QCOMPARE(first->GetDescription(), "orv0 (10.1.0.1)");
}

void TestGigEVision::adapterWithoutAddress()
{
    TestCamera camera(m_first->cameraSettings(0x020000000001, "169.254.7.21"));
    CameraNetwork::run("ip", "addr flush dev orv0");
    Interface *first = interface("orv0");
    const auto cameras = camerasOf(*first);
    const QByteArray description = first->GetDescription();
    OrvGenParam::Array *array = first->GetParamArray();
    array->SetIntegerValue("DeviceSelector", 0);
    array->SetIntegerValue("GevDeviceForceIPAddress", 0x0A010002);
    array->SetIntegerValue("GevDeviceForceSubnetMask", 0xFFFFFF00);
    const int32_t error = array->ExecuteCommand("GevDeviceForceIP");
    CameraNetwork::run("ip", "addr add 10.1.0.1/24 dev orv0");

    QCOMPARE(description, QByteArray("orv0 (no IPv4 address)"));
    QCOMPARE(array->GetIntegerValue("GevInterfaceSubnetMask"), int64_t(0));
    QCOMPARE(error, int32_t(Success));
    QCOMPARE(cameras.size(), size_t(1));
    QCOMPARE(cameras.front()->GetAccessState(), int32_t(AccessSubnetMismatch));
    QCOMPARE(camera.address(), std::string("10.1.0.2"));
    QCOMPARE(camerasOf(*interface("orv0")), cameras);
    QCOMPARE(cameras.front()->GetAccessState(), int32_t(AccessReadWrite));
}

/// The protocol cannot distinguish cameras with the same MAC address.
void TestGigEVision::sharedMacAddress()
{
    TestCamera right(m_first->cameraSettings(0x020000000001, "10.1.0.2"));
    TestCamera wrong(m_first->cameraSettings(0x020000000001, "169.254.7.21"));
    const auto cameras = camerasOf(*interface("orv0"));
    QCOMPARE(cameras.size(), size_t(2));
    for (DeviceInfo *camera : cameras)
        QCOMPARE(camera->GetDisplayName(), "TestCamera - MAC address used twice");
    OrvGenParam::Array *array = interface("orv0")->GetParamArray();
    array->SetIntegerValue("DeviceSelector", 1);
    QCOMPARE(array->GetIntegerValue("GevDeviceIPAddress"), int64_t(0xA9FE0715));
    interface("orv0")->RefreshDevices(nullptr, 200);
    QCOMPARE(array->GetIntegerValue("DeviceSelector"), int64_t(1));
    QVERIFY(array->ExecuteCommand("GevDeviceForceIP") != Success);
    QVERIFY(right.forcedIps().empty() && wrong.forcedIps().empty());

    int32_t error = Success;
    const Released<Device> device(OrvCam_CreateDevice(cameras.back(), &error, AccessControl));
    QCOMPARE(error, int32_t(ErrorWrongSubnet));
}

/// The number of records is limited, but those that were handed out stay valid.
void TestGigEVision::manyCamerasComeAndGo()
{
    auto settings = m_second->cameraSettings(0x020000000001, "10.2.0.2");
    settings.description = "<RegisterDescription><Category Name=\"Root\"/></RegisterDescription>";
    auto camera = std::make_unique<TestCamera>(settings);
    const Released<Device> device(
        OrvCam_CreateDevice(camerasOf(*interface("orv1")).front(), nullptr, AccessControl));
    QVERIFY(device);
    camera.reset();
    CameraCrowd crowd(m_second->farNamespace().toStdString(), {});
    std::set<DeviceInfo *> records;
    for (uint64_t round = 1; round < 12; ++round) {
        CameraCrowd::Claims claims;
        for (uint64_t i = 0; i < 256; ++i)
            claims.push_back({0x020000000000 | round << 8 | i, 0x0A020002, ""});
        crowd.setClaims(claims);
        const auto cameras = camerasOf(*interface("orv1"));
        QCOMPARE(cameras.size(), claims.size());
        const QByteArray id = cameras.front()->GetId();
        QVERIFY(id.startsWith("02:00:00:00:") && id.mid(12, 2).toInt(nullptr, 16) == int(round));
        records.insert(cameras.begin(), cameras.end());
    }
    QCOMPARE(records.size(), size_t(1023));
    QCOMPARE(device->GetDeviceInfo()->GetId(), "02:00:00:00:00:01");
}

Q_DECLARE_METATYPE(TestCameraBehaviour)

void TestGigEVision::malformedAnswers_data()
{
    QTest::addColumn<TestCameraBehaviour>("behaviour");
    QTest::addColumn<int>("count"); // -1: any number
    TestCameraBehaviour silent;
    silent.silence = -1;
    QTest::newRow("none") << silent << 0;
    TestCameraBehaviour late;
    late.delay = 300;
    QTest::newRow("late") << late << 0;
    TestCameraBehaviour confused;
    confused.faults = TestCameraBehaviour::AllFaults;
    confused.isGoodAfter = true;
    confused.duplicates = 1;
    QTest::newRow("wrong, short, foreign, twice") << confused << 1;
    TestCameraBehaviour flooding;
    flooding.garbage = 10000;
    QTest::newRow("flood") << flooding << -1;
}

void TestGigEVision::malformedAnswers()
{
    QFETCH(TestCameraBehaviour, behaviour);
    QFETCH(int, count);
    TestCamera camera(m_first->cameraSettings(0x020000000001, "10.1.0.2"));
    camera.setBehaviour(behaviour);
    QElapsedTimer timer;
    timer.start();
    const int found = static_cast<int>(camerasOf(*interface("orv0")).size());
    QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
    if (count >= 0)
        QCOMPARE(found, count);

    camera.setMood("good");
    QTRY_COMPARE(camerasOf(*interface("orv0")).size(), size_t(1));
    QCOMPARE(camerasOf(*interface("orv0")).front()->GetId(), "02:00:00:00:00:01");
}

void TestGigEVision::wrongSubnetAndForcedIp()
{
    TestCamera wrong(m_first->cameraSettings(0x001B2C3D4E5F, "169.254.7.21"));
    const auto cameras = camerasOf(*interface("orv0"));
    QCOMPARE(cameras.size(), size_t(1));
    QCOMPARE(cameras.front()->GetAccessState(), int32_t(AccessSubnetMismatch));
    int32_t error = Success;
    QVERIFY(!OrvCam_CreateDevice(cameras.front(), &error, AccessControl));
    QCOMPARE(error, int32_t(ErrorWrongSubnet));

    OrvGenParam::Array *array = interface("orv0")->GetParamArray();
    QCOMPARE(array->SetIntegerValue("DeviceSelector", 0), int32_t(Success));
    QCOMPARE(array->GetIntegerValue("GevDeviceMACAddress"), int64_t(0x001B2C3D4E5F));
    QCOMPARE(array->GetIntegerValue("GevDeviceIPAddress"), int64_t(0xA9FE0715));
    array->SetIntegerValue("GevDeviceForceIPAddress", 0x0A010002);
    array->SetIntegerValue("GevDeviceForceSubnetMask", 0xFFFFFF00);
    array->SetIntegerValue("GevDeviceForceGateway", 0x0A0100FE);
    QCOMPARE(array->ExecuteCommand("GevDeviceForceIP"), int32_t(Success));
    QVERIFY(!wrong.forcedIps().empty());
    QCOMPARE(QByteArray::fromStdString(wrong.forcedIps().front()).toHex(),
             QByteArray("0000001b2c3d4e5f") + QByteArray(24, '0') + "0a010002" +
                 QByteArray(24, '0') + "ffffff00" + QByteArray(24, '0') + "0a0100fe");
    QCOMPARE(array->GetIntegerValue("GevDeviceIPAddress"), int64_t(0x0A010002));
    QCOMPARE(array->GetIntegerValue("GevDeviceSubnetMask"), int64_t(0xFFFFFF00));
    QCOMPARE(array->GetIntegerValue("GevDeviceGateway"), int64_t(0x0A0100FE));
    QCOMPARE(cameras.front()->GetAccessState(), int32_t(AccessReadWrite));
    QCOMPARE(camerasOf(*interface("orv0")), cameras);
    QCOMPARE(cameras.front()->GetAccessState(), int32_t(AccessReadWrite));
}

void TestGigEVision::forcedIpWithFaults_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("seconds");
    QTest::newRow("force-ip-refused") << 0 << int(ErrorAccessDenied) << 0;
    QTest::newRow("force-ip-ignored") << 0 << int(ErrorTimeout) << 10; // though acknowledged
    QTest::newRow("silence") << -1 << int(ErrorTimeout) << 5;
    QTest::newRow("request-loss") << 60 << int(Success) << 0;
    QTest::newRow("answer-loss") << 60 << int(Success) << 0;
}

void TestGigEVision::forcedIpWithFaults()
{
    QFETCH(int, value);
    QFETCH(int, error);
    QFETCH(int, seconds);
    TestCamera wrong(m_first->cameraSettings(0x001B2C3D4E5F, "169.254.7.21"));
    DeviceInfo *camera = camerasOf(*interface("orv0")).front();
    wrong.setMood(QTest::currentDataTag(), value);
    OrvGenParam::Array *array = interface("orv0")->GetParamArray();
    array->SetIntegerValue("DeviceSelector", 0);
    array->SetIntegerValue("GevDeviceForceIPAddress", 0x0A010002);
    array->SetIntegerValue("GevDeviceForceSubnetMask", 0xFFFFFF00);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(array->ExecuteCommand("GevDeviceForceIP"), int32_t(error));
    QVERIFY(timer.elapsed() >= 1000 * seconds && timer.elapsed() < 1000 * seconds + 3000);
    const bool isDone = error == Success;
    QCOMPARE(camera->GetAccessState(), int32_t(isDone ? AccessReadWrite : AccessSubnetMismatch));
    QCOMPARE(array->GetIntegerValue("GevDeviceIPAddress"),
             int64_t(isDone ? 0x0A010002 : 0xA9FE0715));
    QCOMPARE(array->GetIntegerValue("GevDeviceForceIPAddress"), int64_t(0x0A010002));
}

void TestGigEVision::forcedIpIsCancelled()
{
    TestCamera wrong(m_first->cameraSettings(0x001B2C3D4E5F, "169.254.7.21"));
    Interface *first = interface("orv0");
    const auto cameras = camerasOf(*first);
    wrong.setMood("force-ip-ignored");
    OrvGenParam::Array *array = first->GetParamArray();
    array->SetIntegerValue("DeviceSelector", 0);
    array->SetIntegerValue("GevDeviceForceIPAddress", 0x0A010002);
    int32_t error = Success;
    std::thread other([&] { error = array->ExecuteCommand("GevDeviceForceIP"); });
    QTRY_VERIFY(!wrong.forcedIps().empty());
    QCOMPARE(first->RefreshDevices(nullptr, 200), int32_t(ErrorBusy));
    QElapsedTimer timer;
    timer.start();
    dynamic_cast<AddressForcing &>(*first).giveUp();
    other.join();
    QVERIFY(timer.elapsed() < 500);
    QCOMPARE(error, int32_t(ErrorTimeout));
    QCOMPARE(camerasOf(*first), cameras);
}

void TestGigEVision::unplugAndReplug()
{
    auto camera = m_first->startCamera("LIVELY");
    const Released<Device> device = open("LIVELY");
    Events events(*device);
    OrvGenParam::Array *array = device->GetParamArray();
    OrvGenParam::Int *width = array->GetInt("Width");
    QCOMPARE(width->SetValue(256), int32_t(Success));
    OrvGenApiNode *node = OrvGenParam_FindNode(array->GetNodeMap(), "Width");

    camera.reset();
    QTRY_COMPARE_WITH_TIMEOUT(events.count(EventDisconnected), 1, waitLimit);
    QVERIFY(!device->IsConnected());
    int32_t error = Success;
    QElapsedTimer timer;
    timer.start();
    width->GetValue(&error);
    QCOMPARE(error, int32_t(ErrorGone));
    int32_t access = 0;
    QCOMPARE(OrvGenParam_GetAccess(node, &access), int32_t(ErrorGone));
    QCOMPARE(access, int32_t(OrvGenParam_AccessNotAvailable));
    QCOMPARE(OrvGenParam_SetInteger(node, 128), int32_t(ErrorGone));
    QVERIFY(timer.elapsed() < 100);
    QVERIFY(!device->GetParamArray());

    camera = m_first->startCamera("LIVELY");
    QTRY_COMPARE_WITH_TIMEOUT(events.count(EventReconnected), 1, waitLimit);
    QVERIFY(device->IsConnected());
    QCOMPARE(OrvGenParam_GetInteger(node, nullptr), int32_t(Success));
    OrvGenParam::Array *present = device->GetParamArray(&error);
    QCOMPARE(present, array);
    QVERIFY(width->GetValue() > 0);
    QCOMPARE(width->SetValue(128), int32_t(Success));
    QCOMPARE(array->GetIntegerValue("Width", &error), int64_t(128));

    // The client has control again, and keeps it.
    QTest::qWait(4000);
    QVERIFY(device->IsConnected());
    QCOMPARE(present->SetIntegerValue("Width", 256), int32_t(Success));
    QCOMPARE(events.count(EventDisconnected), 1);
    interface("orv0")->RefreshDevices(nullptr, 200);
    QCOMPARE(device->GetDeviceInfo()->GetAccessState(), int32_t(AccessNone));
}

QTEST_GUILESS_MAIN(TestGigEVision)
#include "tst_gigevision.moc"

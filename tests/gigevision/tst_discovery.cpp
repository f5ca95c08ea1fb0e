// SPDX-License-Identifier: MIT
#include <gigevision/discovery.h>

#include <cameraio/limits.h>

#include <cameracrowd.h>
#include <cameranetwork.h>
#include <testcamera.h>

#include <QtTest>

#include <arpa/inet.h>

#include <set>

using namespace OrvGigEVision;
using OrvCameraIo::Limits::camerasPerAdapter;

using Claims = CameraCrowd::Claims;

Q_DECLARE_METATYPE(Claims)

/// What is behind "orv0", which is 10.1.0.1, and what only claims to be.
class TestDiscovery : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_network.reset(); }
    void hosts_data();
    void hosts();
    void claims_data();
    void claims();
    void sharedMacAddress();
    void controlIsAskedAgain();

private:
    std::unique_ptr<CameraNetwork> m_network;
};

namespace {

constexpr uint32_t farHost = 0x0A010002;
constexpr uint64_t someMac = 0x020000000001;

AdapterCameras discover()
{
    return discoverCameras(networkAdapters(), std::chrono::milliseconds(300)).front();
}

} // namespace

void TestDiscovery::initTestCase()
{
    m_network = std::make_unique<CameraNetwork>("orv0", "10.1.0.1/24", "10.1.0.2/24");
    m_network->runFar("ip", "addr add 10.1.0.3/24 dev orv0-far");
}

void TestDiscovery::hosts_data()
{
    QTest::addColumn<QString>("subnet"); // of an adapter that is 10.1.0.1 in it and has 10.1.0.7
    QTest::addColumn<QString>("camera");
    QTest::addColumn<bool>("isReachable");
    const auto row = [](const char *subnet, const char *camera, bool isReachable) {
        QTest::newRow(camera) << subnet << camera << isReachable;
    };
    row("255.255.255.0", "10.1.0.2", true);
    row("255.255.255.0", "10.1.1.2", false);
    row("255.255.255.0", "10.1.0.1", false);
    row("255.255.255.0", "10.1.0.7", false);
    row("255.255.255.0", "10.1.0.0", false);
    row("255.255.255.0", "10.1.0.255", false);
    row("255.255.0.0", "10.1.0.255 ", true);
    row("255.255.255.254", "10.1.0.0 ", true);
    for (const char *odd : {"0.0.0.0", "127.0.0.1", "224.0.0.1", "255.255.255.255"})
        row("0.0.0.0", odd, false);
}

void TestDiscovery::hosts()
{
    QFETCH(QString, subnet);
    QFETCH(QString, camera);
    QFETCH(bool, isReachable);
    const auto number = [](const QString &text) {
        return ntohl(inet_addr(text.trimmed().toLatin1().constData()));
    };
    NetworkAdapter adapter;
    adapter.addresses = {{0x0A010001, number(subnet)}, {0x0A010007, 0xFFFFFFFF}};
    QCOMPARE(adapter.addressFor(number(camera)) != nullptr, isReachable);
}

void TestDiscovery::claims_data()
{
    QTest::addColumn<Claims>("claims");
    QTest::addColumn<int>("listed");
    QTest::addColumn<int>("unlisted");
    Claims many;
    for (uint64_t i = 0; i < 300; ++i)
        many.push_back({someMac + i, farHost, ""});
    QTest::newRow("too many") << many << int(camerasPerAdapter) << 300 - int(camerasPerAdapter);
    QTest::newRow("the same again")
        << Claims{{someMac, farHost, ""}, {someMac, farHost, ""}} << 1 << 0;
    QTest::newRow("address of another one") << Claims{{someMac, 0x0A010003, ""}} << 0 << 0;
    QTest::newRow("multicast MAC address") << Claims{{0x01005E000001, farHost, ""}} << 0 << 0;
    QTest::newRow("no MAC address") << Claims{{0, farHost, "A"}, {0, farHost, "B"}} << 2 << 0;
}

void TestDiscovery::claims()
{
    QFETCH(Claims, claims);
    QFETCH(int, listed);
    QFETCH(int, unlisted);
    const CameraCrowd crowd(m_network->farNamespace().toStdString(), claims);
    const AdapterCameras found = discover();
    QCOMPARE(int(found.cameras.size()), listed);
    QCOMPARE(int(found.unlisted), unlisted);
    for (const GvCamera &camera : found.cameras)
        QVERIFY(!camera.isNameShared);
}

void TestDiscovery::sharedMacAddress()
{
    TestCamera first(m_network->cameraSettings(someMac, "10.1.0.2"));
    TestCamera second(m_network->cameraSettings(someMac, "10.1.0.3"));
    TestCamera third(m_network->cameraSettings(someMac + 1, "169.254.7.21"));
    std::set<std::string> ids;
    for (const GvCamera &camera : discover().cameras) {
        QCOMPARE(camera.isNameShared, camera.identity.mac == someMac);
        QVERIFY(camera.isCalled(camera.id()));
        ids.insert(camera.id());
    }
    QCOMPARE(ids.size(), size_t(3));
}

void TestDiscovery::controlIsAskedAgain()
{
    TestCamera camera(m_network->cameraSettings(someMac, "10.1.0.2"));
    camera.setMood("busy", 2);
    const AdapterCameras found = discover();
    QCOMPARE(found.cameras.size(), size_t(1));
    QCOMPARE(found.cameras.front().control, Control::Free);
    QCOMPARE(camera.counters().readRegister, 3u);
}

QTEST_GUILESS_MAIN(TestDiscovery)
#include "tst_discovery.moc"

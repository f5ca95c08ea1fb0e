// SPDX-License-Identifier: MIT
#include <gigevision/descriptionstore.h>
#include <gigevision/descriptionunpacker.h>
#include <gigevision/discovery.h>
#include <gigevision/gvcontrol.h>
#include <gigevision/gvopen.h>

#include <cameraio/limits.h>

#include <cameracrowd.h>
#include <cameranetwork.h>
#include <testcamera.h>
#include <zipped.h>

#include <QTemporaryDir>
#include <QtTest>

#include <arpa/inet.h>
#include <utime.h>

#include <thread>

using namespace OrvGigEVision;
using namespace OrvCameraIo;
using Failure = OpenResult::Failure;

using Claims = CameraCrowd::Claims;

Q_DECLARE_METATYPE(Claims)
Q_DECLARE_METATYPE(RegisterRange)
Q_DECLARE_METATYPE(Status)

/// Cameras at 10.1.0.2 and following, on a cable of their own, opened through "orv0" (10.1.0.1).
class TestGvPort : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_network.reset(); }
    void init() { qputenv("ORVCAM_DESCRIPTION_CACHE", ""); }
    void reachableSubnets_data();
    void reachableSubnets();
    void contradictoryIdentities_data();
    void contradictoryIdentities();
    void controlIsReadAgain();
    void descriptionIsDownloadedOnce_data();
    void descriptionIsDownloadedOnce();
    void cachedDescriptionIsInvalid_data();
    void cachedDescriptionIsInvalid();
    void cacheSizeIsLimited();
    void descriptionUrls_data();
    void descriptionUrls();
    void descriptionArchives_data();
    void descriptionArchives();
    void openingFailures();
    void controlPrivilege();
    void batchesArePacked_data();
    void batchesArePacked();
    void longBatchIsLeftEarly();
    void refusedRegisters_data();
    void refusedRegisters();
    void registersOfAllShapes();
    void twoViews_data();
    void twoViews();
    void networkFaults_data();
    void networkFaults();
    void lostPackets();
    void probesPresence();
    void interruptEndsTransfers();
    void reopensTheSameCamera();

private:
    TestCamera::Settings describedCamera(int lines) const;

    std::unique_ptr<CameraNetwork> m_network;
};

namespace {

constexpr uint32_t firstRegister = 0x10000;
constexpr uint32_t farHost = 0x0A010002;
constexpr uint64_t someMac = 0x020000000001;
const char *const cameraId = "02:00:00:00:00:01";

std::string description(int lines = 200)
{
    std::string text = "<?xml version=\"1.0\"?>\n<RegisterDescription>\n";
    for (int i = 0; i < lines; ++i)
        text += "  <Integer Name=\"Feature" + std::to_string(i * 7919) + "\"/>\n";
    return text + "</RegisterDescription>\n";
}

AdapterCameras discover()
{
    return discoverCameras(networkAdapters(), std::chrono::milliseconds(300)).front();
}

OpenResult open(OpenMode mode = OpenMode::Control)
{
    return openCamera("orv0", cameraId, mode);
}

/// Adjacent registers of one word each.
std::vector<RegisterRange> words(uint32_t count, uint32_t step = 4)
{
    std::vector<RegisterRange> ranges;
    for (uint32_t i = 0; i < count; ++i)
        ranges.push_back({firstRegister + i * step, 4});
    return ranges;
}

std::vector<ReadTransfer> read(GvPort &port, const std::vector<RegisterRange> &ranges)
{
    std::vector<ReadTransfer> batch;
    for (const RegisterRange &range : ranges)
        batch.push_back({range, Status::Closed, {}});
    port.read(batch);
    return batch;
}

/// The number of registers whose value was read correctly.
int right(TestCamera &camera, const std::vector<ReadTransfer> &batch)
{
    int count = 0;
    for (const ReadTransfer &transfer : batch) {
        const auto address = static_cast<uint32_t>(transfer.range.address);
        const uint32_t skipped = address % 4;
        const std::string expected =
            camera.bytes(address - skipped, skipped + transfer.range.size).substr(skipped);
        count += transfer.status == Status::Done &&
                 std::string(transfer.bytes.begin(), transfer.bytes.end()) == expected;
    }
    return count;
}

uint32_t wordOf(const ReadTransfer &transfer)
{
    uint32_t value = 0;
    for (const uint8_t byte : transfer.bytes)
        value = value << 8 | byte;
    return value;
}

} // namespace

void TestGvPort::initTestCase()
{
    m_network = std::make_unique<CameraNetwork>("orv0", "10.1.0.1/24", "10.1.0.2/24");
    m_network->runFar("ip", "addr add 10.1.0.3/24 dev orv0-far");
}

TestCamera::Settings TestGvPort::describedCamera(int lines) const
{
    auto settings = m_network->cameraSettings(0x020000000001, "10.1.0.2");
    settings.description = description(lines);
    return settings;
}

// Discovery

void TestGvPort::reachableSubnets_data()
{
    QTest::addColumn<QString>("subnet"); // of an adapter with 10.1.0.1 and 10.1.0.7
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

void TestGvPort::reachableSubnets()
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

void TestGvPort::contradictoryIdentities_data()
{
    QTest::addColumn<Claims>("claims");
    QTest::addColumn<int>("listed");
    QTest::addColumn<int>("unlisted");
    Claims many;
    for (uint64_t i = 0; i < 300; ++i)
        many.push_back({someMac + i, farHost, ""});
    QTest::newRow("too many") << many << int(Limits::camerasPerAdapter)
                              << 300 - int(Limits::camerasPerAdapter);
    QTest::newRow("the same again")
        << Claims{{someMac, farHost, ""}, {someMac, farHost, ""}} << 1 << 0;
    QTest::newRow("address of another one") << Claims{{someMac, 0x0A010003, ""}} << 0 << 0;
    QTest::newRow("multicast MAC address") << Claims{{0x01005E000001, farHost, ""}} << 0 << 0;
    QTest::newRow("no MAC address") << Claims{{0, farHost, "A"}, {0, farHost, "B"}} << 2 << 0;
}

void TestGvPort::contradictoryIdentities()
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

void TestGvPort::controlIsReadAgain()
{
    TestCamera camera(m_network->cameraSettings(someMac, "10.1.0.2"));
    camera.setMood("busy", 2);
    const AdapterCameras found = discover();
    QCOMPARE(found.cameras.size(), size_t(1));
    QCOMPARE(found.cameras.front().control, Control::Free);
    QCOMPARE(camera.counters().readRegister, 3u);
}

// Opening

void TestGvPort::descriptionIsDownloadedOnce_data()
{
    QTest::addColumn<bool>("isZipped");
    QTest::addColumn<uint32_t>("address");
    QTest::addColumn<int>("length");
    QTest::newRow("XML") << false << 0xC0000000u << 5000;
    QTest::newRow("zip") << true << 0xC0000000u << 5000;
    QTest::newRow("one block") << false << 0x8000u << 3;
    QTest::newRow("not aligned, to the last byte") << true << 0xFFFF0002u << 200;
}

void TestGvPort::descriptionIsDownloadedOnce()
{
    QFETCH(bool, isZipped);
    QFETCH(uint32_t, address);
    QFETCH(int, length);
    const QTemporaryDir directory;
    const QString folder = directory.filePath("a/b");
    qputenv("ORVCAM_DESCRIPTION_CACHE", folder.toUtf8());

    auto settings = describedCamera(length);
    std::string held = settings.description;
    if (isZipped)
        held = zipped({{"camera.xml", held}});
    char url[80];
    std::snprintf(url, sizeof url, "LOCAL:///a;b.zip;%x;%zX?SchemaVersion=1.1.0", address,
                  held.size());
    settings.url = url;
    TestCamera camera(settings);
    camera.addBlock(address & ~3u, std::string(address % 4, 'x') + held);

    std::size_t last = 0;
    const auto first =
        openCamera("orv0", cameraId, OpenMode::Control, [&](std::size_t done, std::size_t total) {
            QVERIFY(done >= last && total == held.size());
            last = done;
        });
    QVERIFY2(first.port, first.message.c_str());
    QVERIFY(*first.description == settings.description);
    QCOMPARE(last, held.size());
    const auto blocks = (held.size() + 535) / 536;
    QVERIFY(camera.takeCounters().readMemory <= blocks + 4);
    const auto files = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden);
    QCOMPARE(files.size(), 1);
    QCOMPARE(files.front().permissions() & 0x1177, 0); // not accessible to others, not executable

    const auto second = open(OpenMode::Monitor);
    QVERIFY(second.port);
    QCOMPARE(second.description, first.description); // equal descriptions are parsed once
    QVERIFY2(camera.counters().packets <= 10, camera.counters().text().c_str());
    QVERIFY(camera.counters().readMemory <= 4);
}

void TestGvPort::cachedDescriptionIsInvalid_data()
{
    QTest::addColumn<QString>("change");
    for (const char *change : {"version", "first block", "last block", "damaged file", "link",
                               "short file", "no folder", "unusable folder"})
        QTest::newRow(change) << change;
}

void TestGvPort::cachedDescriptionIsInvalid()
{
    QFETCH(QString, change);
    const QTemporaryDir directory;
    qputenv("ORVCAM_DESCRIPTION_CACHE", directory.path().toUtf8());
    auto settings = describedCamera(200);
    {
        TestCamera camera(settings);
        QVERIFY(open().port);
    }
    const QString file = QDir(directory.path()).entryInfoList(QDir::Files).front().filePath();
    QFile kept(file);
    QVERIFY(kept.open(QIODevice::ReadWrite));
    QByteArray contents = kept.readAll();
    const QString target = directory.filePath("elsewhere");
    if (change == "version")
        settings.version = "1.1";
    else if (change == "first block")
        settings.description[30] = '!';
    else if (change == "last block")
        settings.description[settings.description.size() - 30] = '!';
    else if (change == "damaged file")
        contents[contents.size() / 2] = '!';
    else if (change == "short file")
        contents.chop(1);
    else if (change == "link")
        QVERIFY(QFile::rename(file, target) && QFile::link(target, file));
    else if (change == "no folder")
        qputenv("ORVCAM_DESCRIPTION_CACHE", "");
    else
        qputenv("ORVCAM_DESCRIPTION_CACHE", file.toUtf8() + "/below");
    kept.resize(0);
    kept.seek(0);
    kept.write(contents);
    kept.close();

    TestCamera camera(settings);
    const auto opened = open();
    QVERIFY2(opened.port, opened.message.c_str());
    QVERIFY(*opened.description == settings.description);
    QVERIFY(camera.takeCounters().readMemory > settings.description.size() / 536);
    if (change.contains("folder"))
        return;
    QVERIFY(!QFileInfo(file).isSymLink()); // the link has been replaced by a file
    QVERIFY(open(OpenMode::Monitor).port);
    QVERIFY(camera.counters().readMemory <= 4);
}

void TestGvPort::cacheSizeIsLimited()
{
    const QTemporaryDir directory;
    const auto withAge = [&](const QString &name, std::time_t seconds) {
        const utimbuf times{std::time(nullptr) - seconds, std::time(nullptr) - seconds};
        QVERIFY(utime(QFile::encodeName(directory.filePath(name)).constData(), &times) == 0);
    };
    const auto present = [&] { return QDir(directory.path()).entryList(QDir::Files, QDir::Time); };
    const DescriptionStore store(directory.path().toStdString());
    const auto key = [](std::size_t number) {
        return DescriptionStore::Key{"", "", std::to_string(number), "", 1};
    };
    for (std::size_t i = 0; i < Limits::keptDescriptions; ++i) {
        const QStringList before = present();
        store.keep(key(i), "x");
        for (const QString &name : present()) {
            if (!before.contains(name))
                withAge(name, static_cast<std::time_t>(1000 - i));
        }
    }
    QFile foreign(directory.filePath("0123456789abcdef"));
    QVERIFY(foreign.open(QIODevice::WriteOnly));
    foreign.close();
    withAge("0123456789abcdef", 5000);
    QVERIFY(store.find(key(0))); // now the most recently used one
    store.keep(key(1000), "x");
    QVERIFY(store.find(key(0)));
    QVERIFY(!store.find(key(1)));
    QVERIFY(store.find(key(2)) && store.find(key(1000)));
    QCOMPARE(present().size(), int(Limits::keptDescriptions) + 1);
    QVERIFY(foreign.exists());
}

void TestGvPort::descriptionUrls_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<bool>("isFine");
    // %1 is replaced by the size.
    const auto fine = [](const char *name, const QByteArray &first, const QByteArray &second = {}) {
        QTest::newRow(name) << first << second << true;
    };
    const auto bad = [](const char *name, const QByteArray &first) {
        QTest::newRow(name) << first << QByteArray() << false;
    };
    fine("small letters", "local:camera.xml;c0000000;%1");
    fine("slashes", "Local:///camera.xml;C0000000;%1");
    fine("version", "Local:camera.xml;C0000000;%1?SchemaVersion=1.0.0");
    fine("no name, blanks", " Local:;C0000000; %1 ");
    fine("second after none", "", "Local:camera.xml;C0000000;%1");
    fine("second after a file", "file:///etc/hostname", "Local:camera.xml;C0000000;%1");
    fine("second after no XML", "Local:camera.xml;48;20", "Local:camera.xml;C0000000;%1");
    bad("none", "");
    bad("file", "file:///etc/hostname");
    bad("web", "http://10.1.0.1/camera.xml");
    bad("no scheme", "camera.xml;C0000000;%1");
    bad("no size", "Local:camera.xml;C0000000");
    bad("empty", "Local:camera.xml;C0000000;0");
    bad("no number", "Local:camera.xml;C0000000;12G4");
    bad("negative", "Local:camera.xml;C0000000;-10");
    bad("prefix only", "Local:");
    bad("too long", "Local:camera.xml;C0000000;4000001");
    bad("64 bits", "Local:camera.xml;C0000000;10000000000000001");
    bad("beyond the end", "Local:camera.xml;FFFFFFF0;11");
    bad("wrapped around", "Local:camera.xml;FFFFFFFFFFFFFFF0;100");
    bad("no end", QByteArray("Local:") + QByteArray(520, 'x'));
    bad("noise", QByteArray("\xff\xfe%n%s\x01;\x80;;\x7f"));
    bad("no memory there", "Local:camera.xml;D0000000;100");
}

void TestGvPort::descriptionUrls()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    QFETCH(bool, isFine);
    auto settings = describedCamera(20);
    const QByteArray size = QByteArray::number(qulonglong(settings.description.size()), 16);
    TestCamera camera(settings);
    camera.setBytes(0x0200, first.replace("%1", size).leftJustified(512, '\0', true).toStdString());
    camera.setBytes(0x0400,
                    second.replace("%1", size).leftJustified(512, '\0', true).toStdString());
    QElapsedTimer timer;
    timer.start();
    const auto opened = open();
    QVERIFY(timer.elapsed() < 500);
    QCOMPARE(opened.failure, isFine ? Failure::None : Failure::BadDescription);
    QCOMPARE(bool(opened.port), isFine);
    QCOMPARE(opened.message.empty(), isFine);
    if (isFine) {
        QVERIFY(*opened.description == settings.description);
        return;
    }
    for (const char c : opened.message)
        QVERIFY(c >= ' ' && c <= '~');
    QVERIFY(camera.counters().readMemory <= 6);
    QTRY_COMPARE(camera.privilege(), 0u);
}

void TestGvPort::descriptionArchives_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *name, const std::string &bytes, const char *problem = "") {
        QTest::newRow(name) << QByteArray::fromStdString(bytes) << problem;
    };
    const std::string xml = description();
    const std::string good = zipped({{"camera.xml", xml}});
    row("XML", xml);
    row("XML and zeros", xml + std::string(9, '\0'));
    row("XML with a byte order mark", "\xEF\xBB\xBF\n" + xml);
    row("zip", good);
    row("zip and zeros", good + std::string(3, '\0'));
    row("with a folder", zipped({{"gen/", ""}, {"gen/camera.dat", xml}}));
    row("with a note", zipped({{"note.txt", "..."}, {"CAMERA.XML", xml}}));
    row("two descriptions", zipped({{"a.xml", xml}, {"b.xml", xml}}), "several files");
    std::vector<std::pair<std::string, std::string>> files{{"camera.xml", xml}};
    while (files.size() < Limits::archiveEntries)
        files.emplace_back(std::to_string(files.size()), "");
    row("many files", zipped(files));
    files.emplace_back("last", "");
    row("too many files", zipped(files), "too many");
    row("encrypted", zipped({{"camera.xml", xml}}, true), "encrypted");
    row("bomb", zipped({{"camera.xml", std::string(Limits::descriptionSize + 1, ' ')}}),
        "too long");
    row("cut off", good.substr(0, good.size() - 40), "damaged");
    std::string spoilt = good;
    spoilt[good.size() / 2] = static_cast<char>(~spoilt[good.size() / 2]);
    row("spoilt", spoilt, "damaged");
    std::string lying = good;
    lying[lying.rfind("PK\1\2") + 24] = 1; // the size in the archive's directory
    row("lying", lying, "damaged");
    row("no XML in it", zipped({{"camera.xml", "%PDF-1.4"}}), "no description");
    row("empty archive", zipped({}), "");
    row("only the beginning", "PK\3\4", "damaged");
    row("picture", "\x89PNG\r\n\x1a\n", "neither");
    row("nothing", std::string(100, '\0'), "neither");
}

void TestGvPort::descriptionArchives()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);
    const auto unpacked = unpackDescription(bytes.toStdString());
    if (bytes.isEmpty()) // libzip cannot create an empty archive
        problem = "neither";
    QCOMPARE(unpacked.problem.empty(), problem.isEmpty());
    QVERIFY2(QString::fromStdString(unpacked.problem).contains(problem), unpacked.problem.c_str());
    if (problem.isEmpty()) {
        QVERIFY(QByteArray::fromStdString(unpacked.text)
                    .endsWith(QByteArray::fromStdString(description())));
    }
}

void TestGvPort::openingFailures()
{
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(open().failure, Failure::Gone);
    QVERIFY(timer.elapsed() < 1500);
    QCOMPARE(openCamera("orv9", cameraId, OpenMode::Control).failure, Failure::Gone);
    {
        TestCamera camera(m_network->cameraSettings(0x020000000001, "169.254.7.21"));
        QCOMPARE(open().failure, Failure::WrongSubnet);
    }
    auto settings = describedCamera(2000);
    TestCamera camera(settings);
    int asked = 0;
    const auto cancelled =
        openCamera("orv0", cameraId, OpenMode::Control, nullptr, [&] { return ++asked > 20; });
    QCOMPARE(cancelled.failure, Failure::Cancelled);
    QCOMPARE(camera.counters().readMemory, 20u);
    QTRY_COMPARE(camera.privilege(), 0u);

    int blocks = 0;
    const auto lost =
        openCamera("orv0", cameraId, OpenMode::Control, [&](std::size_t, std::size_t) {
            if (++blocks == 10)
                camera.setMood("silence");
        });
    QCOMPARE(lost.failure, Failure::Gone);
}

void TestGvPort::controlPrivilege()
{
    auto settings = describedCamera(20);
    settings.heartbeat = 60000;
    TestCamera camera(settings);
    camera.setRegister(firstRegister, 7);
    {
        const auto first = open();
        QVERIFY(first.port);
        QCOMPARE(camera.privilege(), 2u);
        QCOMPARE(camera.reg(0x0938), 3000u);
        QCOMPARE(open().failure, Failure::Busy);

        const auto monitor = open(OpenMode::Monitor);
        QVERIFY(monitor.port);
        QCOMPARE(monitor.port->mode(), OpenMode::Monitor);
        QCOMPARE(right(camera, read(*monitor.port, words(1))), 1);
        QCOMPARE(monitor.port->write(firstRegister, {0, 0, 0, 1}), Status::AccessDenied);
        QCOMPARE(first.port->write(firstRegister, {0, 0, 0, 2}), Status::Done);
        QCOMPARE(camera.reg(firstRegister), 2u);
    }
    QTRY_COMPARE(camera.privilege(), 0u);
    camera.setPrivilege(1);
    QCOMPARE(open(OpenMode::Monitor).failure, Failure::Busy);
    camera.setPrivilege(0);

    // Closing does not wait for a camera that does not answer.
    auto opened = open();
    camera.setMood("silence");
    QElapsedTimer timer;
    timer.start();
    opened.port.reset();
    QVERIFY(timer.elapsed() < 20);
}

// Reading

void TestGvPort::batchesArePacked_data()
{
    QTest::addColumn<bool>("canConcatenate");
    QTest::addColumn<bool>("isWordNumber");
    QTest::addColumn<std::vector<RegisterRange>>("ranges");
    QTest::addColumn<std::vector<RegisterRange>>("declared");
    QTest::addColumn<int>("commands");
    const auto many = words(433);
    const auto apart = words(40, 12);
    std::vector<RegisterRange> mixed = words(130, 16);
    for (uint32_t i = 0; i < 4; ++i)
        mixed.push_back({firstRegister + 0x2000 + i * 0x1000, 8});
    std::vector<RegisterRange> texts;
    for (uint32_t i = 0; i < 6; ++i)
        texts.push_back({firstRegister + i * 128, 62});
    const std::vector<RegisterRange> all = {{firstRegister, 0x10000}};
    QTest::newRow("concatenated") << true << false << many << many << 4;
    QTest::newRow("concatenated numbers") << true << true << many << many << 4;
    QTest::newRow("packed") << false << false << many << many << 4;
    QTest::newRow("packed, gaps declared") << false << false << apart << all << 1;
    QTest::newRow("gaps not declared") << false << false << apart << apart << 40;
    QTest::newRow("numbers one by one") << false << true << apart << all << 40;
    QTest::newRow("eight bytes among words") << true << false << mixed << mixed << 2;
    QTest::newRow("texts") << true << false << texts << texts << 6;
    QTest::newRow("texts, gaps declared") << true << false << texts << all << 2;
    QTest::newRow("long") << true << false << std::vector<RegisterRange>{{firstRegister, 1609}}
                          << all << 4;
}

void TestGvPort::batchesArePacked()
{
    QFETCH(bool, canConcatenate);
    QFETCH(bool, isWordNumber);
    QFETCH(std::vector<RegisterRange>, ranges);
    QFETCH(std::vector<RegisterRange>, declared);
    QFETCH(int, commands);
    auto settings = describedCamera(20);
    settings.canConcatenate = canConcatenate;
    settings.unknownRegisters = TestCameraMemory::Unknown::Filled;
    TestCamera camera(settings);
    const auto opened = open();
    PortHints hints;
    hints.isWordNumber = isWordNumber;
    hints.declared = declared;
    opened.port->setHints(hints);
    const RegisterRange known{firstRegister + 4, 4};
    read(*opened.port, {known}); // determines the byte order

    camera.takeCounters();
    std::reverse(ranges.begin(), ranges.end());
    QCOMPARE(right(camera, read(*opened.port, ranges)), int(ranges.size()));
    QCOMPARE(int(camera.counters().transfers()), commands);
}

void TestGvPort::longBatchIsLeftEarly()
{
    auto settings = describedCamera(20);
    settings.canConcatenate = false;
    settings.unknownRegisters = TestCameraMemory::Unknown::Filled;
    TestCamera camera(settings);
    const auto opened = open();
    camera.setMood("delay", 40);
    const auto ranges = words(40, 12);
    auto batch = read(*opened.port, ranges);
    const auto isDone = [](const ReadTransfer &read) { return read.status == Status::Done; };
    const auto done = std::count_if(batch.begin(), batch.end(), isDone);
    QVERIFY2(done >= 1 && done <= 4, qPrintable(QString::number(done)));
    QCOMPARE(std::count_if(batch.begin(), batch.end(),
                           [](const auto &read) { return read.status == Status::NotSent; }),
             batch.size() - done);
    camera.setMood("delay", 300); // exceeds the time limit of a batch
    batch = read(*opened.port, ranges);
    QCOMPARE(std::count_if(batch.begin(), batch.end(), isDone), 1);
}

void TestGvPort::refusedRegisters_data()
{
    QTest::addColumn<bool>("canConcatenate");
    QTest::addColumn<QByteArray>("mood");
    QTest::addColumn<QVector<int>>("refused"); // indexes, of 100 registers
    QTest::addColumn<int>("first");            // limit of commands
    QTest::addColumn<int>("again");
    const QVector<int> none;
    QTest::newRow("one") << true << QByteArray() << QVector<int>{50} << 3 << 2;
    QTest::newRow("some") << true << QByteArray() << QVector<int>{0, 7, 8, 50, 99} << 10 << 6;
    QTest::newRow("all batches") << true << QByteArray("refuse-batches") << none << 104 << 1;
    QTest::newRow("one of a block") << false << QByteArray() << QVector<int>{50} << 20 << 3;
    QTest::newRow("all blocks") << false << QByteArray("small-reads") << none << 104 << 100;
    QTest::newRow("busy") << true << QByteArray("busy") << none << 101 << 1;
}

void TestGvPort::refusedRegisters()
{
    QFETCH(bool, canConcatenate);
    QFETCH(QByteArray, mood);
    QFETCH(QVector<int>, refused);
    QFETCH(int, first);
    QFETCH(int, again);
    auto settings = describedCamera(20);
    settings.canConcatenate = canConcatenate;
    settings.unknownRegisters = TestCameraMemory::Unknown::Filled;
    TestCamera camera(settings);
    const auto opened = open();
    const auto ranges = words(100);
    opened.port->setHints({false, ranges});
    read(*opened.port, {ranges[1]}); // determines the byte order

    TestCameraBehaviour behaviour;
    if (!mood.isEmpty())
        testCameraMood(mood.toStdString())
            .apply(behaviour, mood == "busy" ? 1 : testCameraMood(mood.toStdString()).usual);
    for (const int i : refused)
        behaviour.refusals.push_back({uint32_t(ranges[i].address), uint32_t(ranges[i].address + 3),
                                      uint16_t(i % 2 ? 0x8006 : 0x8003)});
    camera.setBehaviour(behaviour);
    for (const int limit : {first, again}) {
        camera.takeCounters();
        const auto batch = read(*opened.port, ranges);
        QVERIFY2(int(camera.counters().transfers()) <= limit, camera.counters().text().c_str());
        QCOMPARE(right(camera, batch), int(ranges.size()) - refused.size());
        for (const int i : refused)
            QCOMPARE(batch[i].status, i % 2 ? Status::AccessDenied : Status::InvalidAddress);
    }

    // A refusal is not permanent, and batches work again after it.
    if (mood.isEmpty()) {
        camera.setMood("good");
        read(*opened.port, ranges);
        camera.takeCounters();
        QCOMPARE(right(camera, read(*opened.port, ranges)), 100);
        QCOMPARE(camera.counters().transfers(), 1u);
    }
}

void TestGvPort::registersOfAllShapes()
{
    TestCamera camera(describedCamera(20));
    std::string contents;
    for (int i = 0; i < 2000; ++i)
        contents += static_cast<char>(i * 37 + i / 256);
    camera.setBytes(firstRegister, contents);
    const auto opened = open();
    for (const uint32_t offset : {0u, 1u, 2u, 3u}) {
        for (const uint32_t size : {1u, 2u, 3u, 4u, 5u, 8u, 11u, 535u, 1201u}) {
            const RegisterRange range{firstRegister + offset, size};
            QCOMPARE(right(camera, read(*opened.port, {range})), 1);
            std::vector<uint8_t> bytes(size);
            for (uint32_t i = 0; i < size; ++i)
                bytes[i] = static_cast<uint8_t>(contents[offset + i] ^ 0x5A);
            QCOMPARE(opened.port->write(range.address, bytes), Status::Done);
            contents.replace(offset, size, std::string(bytes.begin(), bytes.end()));
            QVERIFY(camera.bytes(firstRegister, 2000) == contents);
        }
    }

    // A camera without WRITEMEM.
    camera.setRegister(0x0934, 0xE0000021);
    QVERIFY(opened.port->reopen([] { return false; }));
    camera.takeCounters();
    QCOMPARE(opened.port->write(firstRegister, {1, 2, 3, 4, 5, 6, 7, 8}), Status::Done);
    QCOMPARE(camera.bytes(firstRegister, 8), std::string("\1\2\3\4\5\6\7\10"));
    QCOMPARE(camera.counters().writeRegister, 1u);

    const auto batch = read(*opened.port, {{0x100010000, 4},
                                           {0xFFFFFFFE, 4},
                                           {firstRegister, 0},
                                           {firstRegister, Limits::registerSize + 1},
                                           {firstRegister, 4}});
    QCOMPARE(batch[0].status, Status::InvalidAddress);
    QCOMPARE(batch[1].status, Status::InvalidAddress);
    QCOMPARE(batch[2].status, Status::Done);
    QCOMPARE(batch[3].status, Status::InvalidParameter);
    QCOMPARE(right(camera, {batch[4]}), 1);
    QCOMPARE(opened.port->write(0xFFFFFFFE, {1, 2, 3}), Status::InvalidAddress);
    QCOMPARE(opened.port->write(0x0008, {1, 2, 3, 4}), Status::AccessDenied); // write-protected
}

void TestGvPort::twoViews_data()
{
    QTest::addColumn<bool>("canConcatenate");
    QTest::addColumn<bool>("isDeclared"); // by the schema; otherwise detected on the camera
    QTest::addColumn<uint32_t>("from");
    QTest::newRow("schema") << false << true << firstRegister;
    QTest::newRow("found at opening") << false << false << 0u;
    QTest::newRow("found later") << false << false << firstRegister;
    QTest::newRow("found later, concatenated") << true << false << firstRegister;
}

void TestGvPort::twoViews()
{
    QFETCH(bool, canConcatenate);
    QFETCH(bool, isDeclared);
    QFETCH(uint32_t, from);
    auto settings = describedCamera(20);
    settings.canConcatenate = canConcatenate;
    TestCamera camera(settings);
    camera.setBytes(firstRegister, std::string(64, '\0'));
    camera.setRegister(firstRegister + 4, 0x05050505);
    camera.setRegister(firstRegister + 8, 5120);
    if (from == 0)
        camera.addTwoViews(0x0934, 0x0938);
    camera.addTwoViews(firstRegister, firstRegister + 63);
    const auto opened = open();
    QVERIFY(opened.port);
    opened.port->setHints({isDeclared, words(4)});
    QCOMPARE(opened.port->isWordNumber(), isDeclared || from == 0);
    QCOMPARE(wordOf(read(*opened.port, words(4))[2]), 5120u);
    QVERIFY(opened.port->isWordNumber());
    QCOMPARE(opened.port->write(firstRegister + 8, {0, 0, 0, 99}), Status::Done);
    QCOMPARE(camera.reg(firstRegister + 8), 99u);
    QCOMPARE(wordOf(read(*opened.port, words(4))[2]), 99u);
}

// Misbehaving cameras

void TestGvPort::networkFaults_data()
{
    QTest::addColumn<QByteArray>("mood");
    QTest::addColumn<int>("value");
    QTest::addColumn<Status>("status");
    QTest::addColumn<int>("longest"); // ms for a read and a write
    const auto row = [](const char *mood, int value, Status status, int longest) {
        QTest::addRow("%s %d", mood, value) << QByteArray(mood) << value << status << longest;
    };
    for (const char *ahead : {"wrong-id", "wrong-command", "short", "long", "wrong-length",
                              "truncated", "truncated-header", "foreign-port"})
        row(ahead, 1, Status::Done, 300);
    for (const char *unseen : {"wrong-id", "wrong-length", "truncated"})
        row(unseen, 0, Status::NoAnswer, 3700);
    row("short", 0, Status::Failed, 500);
    row("long", 0, Status::Failed, 500);
    row("error-status", 0, Status::Failed, 300);
    row("silence", -1, Status::NoAnswer, 3700);
    row("silence", 150, Status::Done, 400);
    row("delay", 300, Status::Done, 1000);
    row("duplicates", 3, Status::Done, 300);
    row("reorder", 60, Status::Done, 400);
    row("garbage", 50, Status::Done, 400);
    row("pending", 2, Status::Done, 1000);
    row("pending-forever", 65535, Status::NoAnswer, 3700);
    row("refuse", 0x8001, Status::Failed, 300);
    row("refuse", 0x8002, Status::InvalidParameter, 300);
    row("refuse", 0x8003, Status::InvalidAddress, 300);
    row("refuse", 0x8004, Status::AccessDenied, 300);
    row("refuse", 0x8005, Status::InvalidAddress, 300);
    row("refuse", 0x8007, Status::AccessDenied, 300);
}

void TestGvPort::networkFaults()
{
    QFETCH(QByteArray, mood);
    QFETCH(int, value);
    QFETCH(Status, status);
    QFETCH(int, longest);
    TestCamera camera(describedCamera(20));
    camera.setBytes(firstRegister, std::string("\1\2\3\4\5\6\7\10", 8));
    auto opened = open();
    opened.port->setHints({false, words(2)});
    camera.setMood(mood.toStdString(), value);

    QElapsedTimer timer;
    timer.start();
    const auto batch = read(*opened.port, words(2));
    QCOMPARE(batch[0].status, status);
    QCOMPARE(batch[1].status, status);
    QVERIFY(timer.elapsed() < 1150);
    if (status == Status::NoAnswer && mood != "silence" && mood != "pending-forever")
        return; // other faults without an answer take the same path
    const Status writing = opened.port->write(firstRegister + 4, {9, 9, 9, 9});
    // The length of an answer to a write is not significant.
    QCOMPARE(writing, mood == "short" || mood == "long" ? Status::Done : status);
    QVERIFY2(timer.elapsed() < longest, QByteArray::number(timer.elapsed()).constData());
    if (status == Status::Done) {
        QCOMPARE(camera.reg(firstRegister + 4), 0x09090909u);
        QVERIFY(wordOf(batch[0]) == 0x01020304 && wordOf(batch[1]) == 0x05060708);
    }

    camera.setMood("good");
    QCOMPARE(right(camera, read(*opened.port, words(2))), 2);
}

void TestGvPort::lostPackets()
{
    TestCamera camera(describedCamera(20));
    camera.setBytes(firstRegister, std::string("\1\2\3\4", 4));
    const auto opened = open();
    opened.port->setHints({false, words(1)});
    QCOMPARE(right(camera, read(*opened.port, words(1))), 1);
    camera.setMood("request-loss", 10);
    camera.addMood("answer-loss", 10);
    camera.addMood("delay", 5);
    camera.takeCounters();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 100; ++i)
        QCOMPARE(right(camera, read(*opened.port, words(1))), 1);
    // 5 ms for each answer, and some 20 ms for each lost packet.
    const auto counters = camera.counters();
    const unsigned lost = counters.lostRequests + counters.lostAnswers;
    QVERIFY(lost > 10);
    QVERIFY2(timer.elapsed() < 700 + 45 * lost, QByteArray::number(timer.elapsed()).constData());
    QCOMPARE(counters.repetitions + counters.lostRequests >= lost, true);
}

// Loss and reconnection

void TestGvPort::probesPresence()
{
    TestCamera camera(describedCamera(20));
    const auto opened = open();
    using Presence = Port::Presence;
    camera.takeCounters();
    QCOMPARE(opened.port->probe(), Presence::Answers);
    QCOMPARE(camera.counters().packets, 1u);
    camera.setMood("pending-forever");
    QCOMPARE(opened.port->probe(), Presence::Answers);
    camera.setMood("silence");
    QElapsedTimer timer;
    timer.start();
    camera.takeCounters();
    QCOMPARE(opened.port->probe(), Presence::Silent);
    QVERIFY(timer.elapsed() < 300);
    QCOMPARE(camera.counters().packets, 1u);
    camera.setMood("delay", 400); // exceeds the interval of the probes
    QCOMPARE(opened.port->probe(), Presence::Silent);
    for (int i = 0; i < 4; ++i) {
        QTest::qWait(200);
        QCOMPARE(opened.port->probe(), Presence::Answers);
    }
    camera.setMood("good");
    QCOMPARE(opened.port->probe(), Presence::Answers);
    QTest::qWait(400);      // until all probes have been answered
    camera.setPrivilege(0); // as after a power cycle
    opened.port->probe();   // receives the last delayed answer
    QCOMPARE(opened.port->probe(), Presence::Forgotten);
    camera.setPrivilege(1);
    QCOMPARE(opened.port->probe(), Presence::Forgotten);
}

void TestGvPort::interruptEndsTransfers()
{
    TestCamera camera(describedCamera(20));
    auto opened = open();
    camera.setMood("silence");
    const std::vector<RegisterRange> ranges = {{firstRegister, 4}, {firstRegister + 4096, 40}};
    auto batch = read(*opened.port, ranges);
    QCOMPARE(batch[0].status, Status::NoAnswer);
    QCOMPARE(batch[1].status, Status::NotSent);

    QElapsedTimer timer;
    timer.start();
    std::thread other([&] {
        QThread::msleep(50);
        opened.port->interrupt();
    });
    batch = read(*opened.port, ranges);
    other.join();
    QCOMPARE(batch[0].status, Status::Closed);
    QCOMPARE(opened.port->write(firstRegister, {1, 2, 3, 4}), Status::Closed);
    QVERIFY(timer.elapsed() < 200);
    camera.setMood("good");
    opened.port.reset(); // still releases control
    QTRY_COMPARE(camera.privilege(), 0u);
}

void TestGvPort::reopensTheSameCamera()
{
    const QTemporaryDir directory;
    qputenv("ORVCAM_DESCRIPTION_CACHE", directory.path().toUtf8());
    const auto never = [] { return false; };
    auto settings = describedCamera(200);
    auto camera = std::make_unique<TestCamera>(settings);
    camera->setRegister(firstRegister, 7);
    const auto opened = open();
    camera->unplug();
    QCOMPARE(opened.port->probe(), Port::Presence::Silent);
    QVERIFY(!opened.port->reopen(never));

    // The cable was pulled: the client still has control.
    camera->plugIn(true);
    camera->takeCounters();
    QVERIFY(opened.port->reopen(never));
    QVERIFY2(camera->counters().packets <= 11, camera->counters().text().c_str());
    QCOMPARE(right(*camera, read(*opened.port, words(1))), 1);

    // The camera was switched off, and another program takes control first.
    camera->unplug();
    camera->plugIn();
    camera->setPrivilege(2);
    QVERIFY(!opened.port->reopen(never));
    camera->setPrivilege(0);
    QVERIFY(!opened.port->reopen([] { return true; }));
    QVERIFY(opened.port->reopen(never));
    QCOMPARE(camera->privilege(), 2u);

    // The camera gets another address, and then other firmware.
    camera.reset();
    settings.address = "10.1.0.3";
    camera = std::make_unique<TestCamera>(settings);
    camera->setRegister(firstRegister, 8);
    QVERIFY(opened.port->reopen(never));
    QCOMPARE(opened.port->probe(), Port::Presence::Answers);
    QCOMPARE(wordOf(read(*opened.port, words(1))[0]), 8u);
    QCOMPARE(opened.port->write(firstRegister, {0, 0, 0, 9}), Status::Done);
    for (const bool isOtherText : {false, true}) {
        camera.reset();
        auto changed = settings;
        if (isOtherText)
            changed.description[10] = '!';
        else
            changed.version = "2.0";
        camera = std::make_unique<TestCamera>(changed);
        QVERIFY(!opened.port->reopen(never));
        QTRY_COMPARE(camera->privilege(), 0u);
        QCOMPARE(opened.port->probe(), Port::Presence::Forgotten);
    }
}

QTEST_GUILESS_MAIN(TestGvPort)
#include "tst_gvport.moc"

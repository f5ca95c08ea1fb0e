// SPDX-License-Identifier: MIT
#include <journal/featurejournal.h>
#include <memorynodemap.h>
#include <orvcameraguiapi.h>
#include <orvcamerasettings.h>
#include <orvsettingsmenu.h>
#include <settings/settingsfile.h>
#include <simulatednodemap.h>
#include <wirecamera.h>

#include <QtTest>
#include <QtWidgets>

#include <sys/resource.h>

#include <array>
#include <atomic>
#include <csignal>
#include <set>
#include <thread>

using namespace OrvGenApi;
using OrvGui::FeatureJournal;
using OrvGui::OrvCameraSettings;
using OrvGui::OrvSettingsMenu;
using OrvGui::SettingsFile;
using Result = OrvCameraSettings::Result;

namespace {

const QByteArray head = "# {05D8C294-F295-4dfb-9D01-096BD04049F4}\n"
                        "# GenApi persistence file (version 3.1.0)\n";

/// A camera with a gain for each channel and phase, and with features that depend on others.
class SmallCamera : public MemoryNodeMap
{
public:
    SmallCamera() : MemoryNodeMap("Small")
    {
        selector = &addEnumeration("GainSelector", {{"Red", 0}, {"Blue", 1}}, 1);
        phase = &addInteger("PhaseIndex", 2);
        phase->setLimits(1, 2);
        gain = &addFloat("Gain");
        gain->bind([this] { return gains[place()]; },
                   [this](double value) { gains[place()] = value; });
        gain->setLimits(0, 100);
        for (Node *node : {static_cast<Node *>(selector), static_cast<Node *>(phase)})
            addSelection(*node, *gain);
        offset = &addInteger("OffsetX");
        width = &addInteger("Width", 100);
        width->setLimits(1, 100);
        offset->setLimits(0, 99);
        offset->bindMax([this] { return 100 - width->GetValue(); });
        offset->dependsOn(*width);
        text = &addString("Text");
        for (Node *node : {static_cast<Node *>(gain), static_cast<Node *>(offset),
                           static_cast<Node *>(width), static_cast<Node *>(text)})
            node->properties().streamable = true;
    }

    std::size_t place() { return std::size_t(2 * selector->GetIntValue() + phase->GetValue() - 1); }
    bool isPutBack() { return selector->GetIntValue() == 1 && phase->GetValue() == 2; }

    std::array<double, 4> gains{{1.5, 2.5, 0.1, 1e-7}};
    MemoryEnumeration *selector;
    MemoryInteger *phase;
    MemoryFloat *gain;
    MemoryInteger *offset;
    MemoryInteger *width;
    MemoryString *text;
};

QString reasonOf(const Result &result, const char *feature)
{
    for (const auto &problem : result.problems) {
        if (problem.feature == feature)
            return problem.reason;
    }
    return QString();
}

template<typename Window>
Window *shown(const char *name = nullptr)
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *found = qobject_cast<Window *>(window);
        if (found && found->isVisible() && (!name || found->objectName() == name))
            return found;
    }
    return nullptr;
}

QString tableText(QDialog *dialog)
{
    const QAbstractItemModel *model = dialog->findChild<QTreeView *>()->model();
    QStringList rows;
    for (int row = 0; row < model->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model->columnCount(); ++column)
            cells << model->index(row, column).data().toString();
        rows << cells.join('|');
    }
    return rows.join('\n');
}

} // namespace

/// Settings files: format, contents, C functions and dialogs.
class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_folder.isValid()); }
    void fileFormat_data();
    void fileFormat();
    void valuesInFiles_data();
    void valuesInFiles();
    void selectors();
    void refusedValues();
    void otherModels();
    void simulatedCamera();
    void twoFiles();
    void cancelled();
    void cFunctions();
    void settingsMenu();
    void userSets();
    void transfersOfGigECamera();

private:
    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QString write(const QByteArray &bytes, const char *name = "given.pfs") const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("%s cannot be written", name);
        return path(name);
    }
    QByteArray read(const QString &name) const
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
};

void TestSettings::fileFormat_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected"); // labels and values; or the error with its line
    const auto row = [](const char *name, const QByteArray &bytes, const char *expected) {
        QTest::newRow(name) << bytes << QString::fromUtf8(expected);
    };
    row("nothing to set", head, "");
    row("values", head + "A\t1\nB\t\nC\t a\tb \n", "A=1;B=;C= a\tb ");
    row("comments", head + "# Device = V::M -- tip -- version\n\n# x\nA\t1\n", "A=1");
    row("line ends of Windows", QByteArray(head + "A\t1\n").replace("\n", "\r\n"), "A=1");
    row("byte order mark", "\xEF\xBB\xBF" + head + "A\t\xC3\xA4\n", "A=\u00E4");
    row("GUID in small letters", QByteArray(head).toLower() + "A\t1\n", "A=1");
    row("selection", head + "A\t{S=E}\t1\nA\t{S=E,T=2}\t3\nA\t{S=E}{T=1}\t4\n",
        "A [S=E]=1;A [S=E, T=2]=3;A [S=E, T=1]=4");
    row("braces in a text", head + "A\t{x}\ty\n", "A={x}\ty");
    row("Latin-1 in a comment", head + "# \xE4\nA\t1\n", "A=1");
    row("empty", "", "Line 1: ");
    row("something else", "<?xml version='1.0'?>\n", "Line 1: ");
    row("no end", head + "A\t1\nWidth\t64", "Line 4: ");
    row("cut off in a name", head + "A\t1\nExpos", "Line 4: ");
    row("no value", head + "A\t1\n\nB\nC\t1\n", "Line 5: ");
    row("no name", head + "\t1\n", "Line 3: ");
    row("blank in a name", head + "A B\t1\n", "Line 3: ");
    row("not UTF-8", head + "A\t\xE4\n", "Line 3: ");
    row("zero byte", head + QByteArray("A\t1\0\n", 5), "Line 3: ");
    row("too large", head + QByteArray(int(SettingsFile::largestSize), '#'), "too large");
}

void TestSettings::fileFormat()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    QString error;
    const SettingsFile file = SettingsFile::fromBytes(bytes, &error);
    if (!error.isEmpty()) {
        QVERIFY2(error.contains(expected) && !expected.isEmpty(), qPrintable(error));
        QVERIFY(file.lines.isEmpty());
        return;
    }
    QStringList lines;
    for (const OrvGui::Setting &line : file.lines)
        lines << line.label() + '=' + line.value;
    QCOMPARE(lines.join(';'), expected);
    QVERIFY(file.device == (bytes.contains("Device") ? "V::M" : ""));
}

void TestSettings::valuesInFiles_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("result"); // null if the value is refused
    const QString refused;
    int number = 0;
    const auto row = [&](const char *feature, const char *value, const QString &result) {
        QTest::newRow(qPrintable(QString("%1 %2").arg(number++).arg(feature)))
            << feature << QString::fromUtf8(value) << result;
    };
    for (const char *value : {"16", "0x10", "0X10", " 16 ", "+16"})
        row("Integer", value, "16");
    row("Integer", "-9223372036854775808", "-9223372036854775808");
    row("Integer", "0xFFFFFFFFFFFFFFFF", "-1");
    row("Integer", "192.168.1.2", "3232235778");
    row("Integer", "00:1B:2C:3D:4E:5F", "116706332255");
    for (const char *value : {"", "x", "1.5", "1e3", "0x", "9223372036854775808", "1,000", "1.2.3",
                              "256.1.1.1", "0:1:2:3:4:5:6", "--1", "1 2", "1_000", "0b1"})
        row("Integer", value, refused);
    row("Float", "0.1", "0.1");
    row("Float", "1e-7", "1e-07");
    row("Float", "  2 ", "2");
    row("Float", "0.30000000000000004", "0.30000000000000004");
    for (const char *value : {"", "nan", "NaN", "inf", "-inf", "1,5", "1e999", "0x1p3", "abc"})
        row("Float", value, refused);
    for (const char *value : {"1", "true", "True", "TRUE", " 1 "})
        row("Boolean", value, "1");
    for (const char *value : {"", "2", "yes", "-1", "tru"})
        row("Boolean", value, refused);
    for (const char *value : {"Two", "Two ", "2", "0x2"})
        row("Choice", value, "Two");
    for (const char *value : {"", "two", "3", "Three", "EnumEntry_Choice_Two"})
        row("Choice", value, refused);
    row("String", "", "");
    row("String", " a\tb\t", " a\tb\t");
    row("String", "\"'\\<b>&%1", "\"'\\<b>&%1");
    row("String", "\u65E5\u672C", "\u65E5\u672C");
    row("String", qPrintable(QString(65, 'x')), refused);
    row("String", qPrintable(QString(1000000, 'x')), refused);
    row("Bytes", "0x00FF10", "0x00ff10");
    row("Bytes", "00ff10", "0x00ff10");
    for (const char *value : {"0x0", "0x00FF1000", "0xZZ", "zz"})
        row("Bytes", value, refused);
}

/// Loads and saves files with all kinds of contents.
void TestSettings::valuesInFiles()
{
    QFETCH(QString, feature);
    QFETCH(QString, value);
    QFETCH(QString, result);
    MemoryNodeMap camera;
    const std::vector<Node *> nodes = {
        &camera.addInteger("Integer", 7),
        &camera.addFloat("Float", 7),
        &camera.addBoolean("Boolean"),
        &camera.addEnumeration("Choice", {{"One", 1}, {"Two", 2}}, 1),
        &camera.addString("String", "old"),
        &camera.addRegister("Bytes", {1, 2, 3})};
    for (Node *node : nodes)
        node->properties().streamable = true;
    const auto valueNow = [&] {
        const Result saved = OrvCameraSettings::save(camera, path("saved.pfs"));
        const QByteArray lines = '\n' + read(path("saved.pfs"));
        const QByteArray start = '\n' + feature.toUtf8() + '\t';
        const int from = int(lines.indexOf(start)) + int(start.size());
        return saved.isComplete()
                   ? QString::fromUtf8(lines.mid(from, lines.indexOf('\n', from) - from))
                   : QString("?");
    };
    const QString before = valueNow();
    const Result loaded = OrvCameraSettings::load(
        camera, write(head + feature.toUtf8() + '\t' + value.toUtf8() + '\n'));
    QVERIFY2(loaded.error.isEmpty(), qPrintable(loaded.error));
    QCOMPARE(loaded.problems.isEmpty(), !result.isNull());
    QVERIFY(!result.isNull() || !loaded.problems.first().reason.isEmpty());
    QCOMPARE(loaded.count, result.isNull() ? 0 : 1);
    QCOMPARE(valueNow(), result.isNull() ? before : result);
}

void TestSettings::selectors()
{
    SmallCamera camera;
    QCOMPARE(OrvCameraSettings::save(camera, path("a.pfs")).count, 7);
    const QByteArray saved = read(path("a.pfs"));
    QVERIFY2(saved.startsWith(QByteArray(head + "# Device = Small\n")), saved.constData());
    QVERIFY2(
        saved.endsWith("GainSelector\tRed\nPhaseIndex\t1\nGain\t1.5\nPhaseIndex\t2\nGain\t2.5\n"
                       "PhaseIndex\t2\nGainSelector\tBlue\nPhaseIndex\t1\nGain\t0.1\n"
                       "PhaseIndex\t2\nGain\t1e-07\nPhaseIndex\t2\nGainSelector\tBlue\n"
                       "OffsetX\t0\nWidth\t100\nText\t\n"),
        saved.constData());
    QVERIFY(camera.isPutBack());

    const auto gains = camera.gains;
    camera.gains = {{}};
    camera.gain->changed();
    const Result different = OrvCameraSettings::compare(camera, path("a.pfs"));
    QCOMPARE(different.differences.size(), 4);
    QCOMPARE(different.differences.first().feature,
             QString("Gain [GainSelector=Red, PhaseIndex=1]"));
    QCOMPARE(OrvCameraSettings::load(camera, path("a.pfs")).count, 7);
    QCOMPARE(camera.gains, gains);
    QVERIFY(camera.isPutBack());

    // The other form of lines, and a selector that does not exist.
    const Result newer = OrvCameraSettings::load(
        camera, write(head + "Gain\t{GainSelector=Red,PhaseIndex=2}\t9\n"
                             "Gain\t{GainSelector=Green}\t8\nGain\t{LineSelector=A}\t8\n"
                             "GainSelector\tGreen\nGain\t7\nGainSelector\tBlue\n"));
    QCOMPARE(newer.count, 1);
    QCOMPARE(newer.problems.size(), 3);
    QCOMPARE(camera.gains[1], 9.0);
    QVERIFY(camera.isPutBack());

    // A selector that is also a setting keeps the last value in the file.
    camera.phase->properties().streamable = true;
    QVERIFY(OrvCameraSettings::load(camera, write(head + "PhaseIndex\t2\nGain\t5\nPhaseIndex\t1\n"))
                .isComplete());
    QCOMPARE(camera.phase->GetValue(), int64_t(1));
    camera.phase->properties().streamable = false;
    camera.phase->change(2);
    // A selector is restored even if the camera no longer offers its old value.
    camera.selector->entry("Blue").setAccessMode(GenApi::NA);
    QVERIFY(
        OrvCameraSettings::load(camera, write(head + "GainSelector\tRed\nGain\t5\n")).isComplete());
    QVERIFY(camera.isPutBack());
    camera.selector->entry("Blue").setAccessMode(GenApi::RW);

    // Selectors are restored even if a write fails.
    camera.gains = {{}};
    camera.gain->changed();
    int writes = 0;
    camera.gain->onWrite([&] {
        if (++writes == 2)
            throw GenICam::TimeoutException("no answer", __FILE__, __LINE__);
        if (writes > 2)
            throw GenICam::RuntimeException("broken", __FILE__, __LINE__);
    });
    QCOMPARE(OrvCameraSettings::load(camera, path("a.pfs")).problems.size(), 3);
    QVERIFY(camera.isPutBack());
    camera.gain->onRead([] { throw GenICam::TimeoutException("no answer", __FILE__, __LINE__); });
    camera.gain->changed();
    const Result failed = OrvCameraSettings::save(camera, path("a.pfs"));
    QVERIFY(!failed.error.isEmpty());
    QCOMPARE(read(path("a.pfs")), saved);
    QVERIFY(camera.isPutBack());
}

void TestSettings::refusedValues()
{
    SmallCamera camera;
    camera.addInteger("Locked", 3).setAccessMode(GenApi::RO);
    camera.addInteger("Away", 3).setAccessMode(GenApi::NA);
    MemoryInteger &clamped = camera.addInteger("Clamped", 3);
    clamped.bind([] { return int64_t(3); });
    camera.addCommand("Reset");
    // The offset is valid only after the width has been reduced.
    const Result result = OrvCameraSettings::load(
        camera, write(head + "OffsetX\t40\nWidth\t50\nLocked\t3\nLocked\t4\nAway\t3\nClamped\t5\n"
                             "Unknown\t1\nReset\t1\n"));
    QCOMPARE(camera.offset->GetValue(), int64_t(40));
    QCOMPARE(camera.width->GetValue(), int64_t(50));
    QCOMPARE(result.count, 3);
    QCOMPARE(result.missing, QStringList({"Unknown", "Reset"}));
    QCOMPARE(reasonOf(result, "Locked"), QString("It cannot be changed now."));
    QCOMPARE(reasonOf(result, "Away"), QString("It is not available now."));
    QCOMPARE(reasonOf(result, "Clamped"), QString("The camera has made it 3."));
    QCOMPARE(result.problems.size(), 3);
    const Result range = OrvCameraSettings::load(camera, write(head + "OffsetX\t51\n"));
    QCOMPARE(reasonOf(range, "OffsetX"), QString("The camera takes values from 0 to 50."));

    camera.text->change(std::string("a\nb"));
    QCOMPARE(OrvCameraSettings::save(camera, path("b.pfs")).problems.size(), 1);
    camera.text->change(std::string("\xE4"));
    QCOMPARE(OrvCameraSettings::save(camera, path("b.pfs")).problems.size(), 1);
    QVERIFY(!OrvCameraSettings::save(camera, path("none/b.pfs")).error.isEmpty());
    QVERIFY(!OrvCameraSettings::load(camera, path("none.pfs")).error.isEmpty());
    MemoryNodeMap nothing;
    QVERIFY(!OrvCameraSettings::save(nothing, path("c.pfs")).error.isEmpty());
    QVERIFY(!QFile::exists(path("c.pfs")));
}

void TestSettings::otherModels()
{
    MemoryNodeMap camera("Generic");
    camera.addInteger("Width", 1);
    camera.addString("DeviceModelName", "acA1300-75gm");
    camera.addString("DeviceVendorName", "Maker");
    const auto load = [&](const QByteArray &device, OrvCameraSettings::Models models) {
        return OrvCameraSettings::load(
            camera, write(head + "# Device = " + device + "\nWidth\t2\n"), models);
    };
    for (const char *device : {"Maker::acA1300-75gm", "Maker::acA1300_75GM -- x", "Other::Generic"})
        QVERIFY2(load(device, OrvCameraSettings::SameModel).error.isEmpty(), device);
    const Result other = load("Maker::acA640-120gm", OrvCameraSettings::SameModel);
    QVERIFY(other.isOfOtherModel && !other.error.isEmpty() && other.count == 0);
    QVERIFY(load("Maker::acA640-120gm", OrvCameraSettings::AnyModel).isComplete());
}

void TestSettings::simulatedCamera()
{
    OrvSimulation::CameraIdentity identity;
    const OrvSimulation::SimulatedCamera first(identity);
    identity.serial = "SIM-0002";
    const OrvSimulation::SimulatedCamera second(identity);
    const auto map = openNodeMap(first);
    const auto other = openNodeMap(second);
    QString error;
    QVERIFY2(OrvCameraSettings::setValue(*map, "TriggerMode", "On", &error), qPrintable(error));
    QVERIFY(OrvCameraSettings::setValue(*map, "FrameAB_Selector", "FrameB", &error));
    QVERIFY(OrvCameraSettings::setValue(*map, "Frame_Height", "480", &error));
    const Result saved = OrvCameraSettings::save(*map, path("first.pfs"));
    QVERIFY2(saved.isComplete() && saved.count > 80, qPrintable(saved.error));
    QVERIFY(OrvCameraSettings::compare(*map, path("first.pfs")).differences.isEmpty());
    QCOMPARE(OrvCameraSettings::value(*map, "FrameAB_Selector", &error), QString("FrameB"));

    QVERIFY(OrvCameraSettings::compare(*other, path("first.pfs")).differences.size() >= 2);
    const Result loaded = OrvCameraSettings::load(*other, path("first.pfs"));
    for (const auto &problem : loaded.problems)
        qWarning("%s: %s", qPrintable(problem.feature), qPrintable(problem.reason));
    QVERIFY(loaded.isComplete());
    QCOMPARE(loaded.count, saved.count);
    QVERIFY(OrvCameraSettings::compare(*other, path("first.pfs")).differences.isEmpty());
    QCOMPARE(OrvCameraSettings::value(*other, "FrameAB_Selector", &error), QString("FrameA"));
    QVERIFY(OrvCameraSettings::setValue(*other, "FrameAB_Selector", "FrameB", &error));
    OrvCameraSettings::save(*other, path("second.pfs"));
    QCOMPARE(read(path("second.pfs")), read(path("first.pfs")));
}

void TestSettings::twoFiles()
{
    const QString left =
        write(head + "A\t1\nGainSelector\tRed\nGain\t1\nGainSelector\tBlue\n"
                     "Gain\t2\nGainSelector\tRed\nOutSelector\tX\nOnly\t1\nB\t0x10\n",
              "l.pfs");
    const QString right = write(
        head + "GainSelector\tRed\nGain\t1.0\nGainSelector\tBlue\nGain\t3\nGainSelector\tRed\n"
               "OutSelector\tY\nA\t1\nB\t16\nC\t\n",
        "r.pfs");
    QStringList lines;
    for (const auto &one : OrvCameraSettings::compare(left, right).differences)
        lines << one.feature + '|' + (one.left.isNull() ? "-" : one.left) + '|' +
                     (one.right.isNull() ? "-" : one.right);
    QCOMPARE(lines,
             QStringList({"Gain [GainSelector=Blue]|2|3", "OutSelector|X|Y", "Only|1|-", "C|-|"}));
    QVERIFY(!OrvCameraSettings::compare(left, path("none")).error.isEmpty());
}

void TestSettings::cancelled()
{
    SmallCamera camera;
    OrvCameraSettings::save(camera, path("a.pfs"));
    const QByteArray before = read(path("a.pfs"));
    camera.width->change(int64_t(7));
    for (int steps = 0; steps < 9; ++steps) {
        int left = steps;
        const auto progress = [&left](int done, int total) { return done <= total && left-- > 0; };
        Result result = OrvCameraSettings::save(camera, path("a.pfs"), progress);
        QVERIFY(result.isCancelled || steps > 4);
        QVERIFY(!result.isCancelled || read(path("a.pfs")) == before);
        QVERIFY(camera.isPutBack());
        left = steps;
        write(before, "a.pfs");
        result =
            OrvCameraSettings::load(camera, path("a.pfs"), OrvCameraSettings::SameModel, progress);
        QCOMPARE(result.isCancelled, true);
        QVERIFY(camera.isPutBack());
        QVERIFY(result.count <= steps);
    }

    // The disk is full during the save.
    write(before, "a.pfs");
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit full{20, usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    const Result cut = OrvCameraSettings::save(camera, path("a.pfs"));
    setrlimit(RLIMIT_FSIZE, &usual);
    QVERIFY(!cut.error.isEmpty());
    QVERIFY(read(path("a.pfs")) == before);
}

void TestSettings::cFunctions()
{
    SmallCamera camera;
    char report[64] = "x";
    const QByteArray file = path("c.pfs").toUtf8();
    QCOMPARE(SaveCameraSettings(&camera, file.constData(), report, sizeof report),
             int(OrvSettings_Done));
    QCOMPARE(report, "");
    camera.width->change(int64_t(7));
    QCOMPARE(CompareCameraSettings(file.constData(), &camera, nullptr, report, sizeof report),
             int(OrvSettings_Partly));
    QCOMPARE(report, "Width\t100\t7");
    QCOMPARE(CompareCameraSettings(file.constData(), nullptr, file.constData(), nullptr, 0),
             int(OrvSettings_Done));
    QCOMPARE(LoadCameraSettings(&camera, file.constData(), 0, nullptr, 0), int(OrvSettings_Done));
    QCOMPARE(camera.width->GetValue(), int64_t(100));
    const QByteArray other = write(head + "# Device = Other\nWidth\t200\n").toUtf8();
    QCOMPARE(LoadCameraSettings(&camera, other.constData(), 0, report, sizeof report),
             int(OrvSettings_OtherModel));
    QCOMPARE(LoadCameraSettings(&camera, other.constData(), 1, report, 9), int(OrvSettings_Partly));
    QCOMPARE(report, "Width: T"); // truncated to the buffer's size
    QCOMPARE(SaveCameraSettings(nullptr, "x", report, sizeof report), int(OrvSettings_Failed));
    QVERIFY(report[0]);
}

void TestSettings::settingsMenu()
{
    SmallCamera camera;
    QWidget window;
    window.show();
    QMenu entries;
    QAction *last = entries.addAction("Quit");
    OrvSettingsMenu menu(&window);
    menu.addTo(&entries, last);
    QCOMPARE(entries.actions().last(), last);
    QVERIFY(!menu.actions().first()->isEnabled() && !menu.actions().last()->isVisible());
    menu.setNodeMap(&camera);
    QVERIFY(menu.actions().first()->isEnabled());
    QSignalSpy finished(&menu, &OrvSettingsMenu::finished);

    menu.save(path("m.pfs"));
    QVERIFY(finished.wait());
    shown<QMessageBox>()->accept();
    camera.width->change(int64_t(60));
    menu.compare(path("m.pfs"));
    QVERIFY(finished.wait());
    auto *dialog = shown<QDialog>("SettingsComparison");
    QCOMPARE(tableText(dialog), QString("Width|100|60"));
    dialog->reject();

    // The preview, the list of refused values, and the restored state.
    const auto journal = FeatureJournal::of(&camera);
    FeatureJournal::write(journal, "Width", 60, 61, [] { return true; });
    QVERIFY(journal->canUndo());
    QStringList writes;
    connect(journal.get(), &FeatureJournal::written, this, [&](const FeatureJournal::Write &one) {
        QStringList words{one.node->GetName().c_str(), one.before, one.after};
        for (const auto &selector : one.selectors)
            words << selector.feature + selector.text;
        writes << words.join('|');
    });
    camera.offset->setAccessMode(GenApi::RO);
    menu.load(write(head + "Width\t50\nOffsetX\t9\nNew\t1\n"));
    QVERIFY(finished.wait());
    dialog = shown<QDialog>("SettingsPreview");
    QCOMPARE(tableText(dialog), QString("Width|60|50\nOffsetX|0|9\nNew|(none)|1"));
    QCOMPARE(camera.width->GetValue(), int64_t(60));
    dialog->accept();
    QVERIFY(finished.wait());
    dialog = shown<QDialog>("SettingsResult");
    QCOMPARE(tableText(dialog), QString("OffsetX|9|It cannot be changed now.\n"
                                        "New|1|The camera does not have it."));
    QCOMPARE(camera.width->GetValue(), int64_t(50));
    QCOMPARE(writes, QStringList("Width|60|50"));
    QVERIFY(!journal->canUndo()); // undo would restore values from before the load
    dialog->findChild<QPushButton *>("putBackButton")->click();
    QVERIFY(finished.wait());
    QCOMPARE(camera.width->GetValue(), int64_t(60));
    QVERIFY2(writes.contains("Width||60"), qPrintable(writes.join('\n')));
    shown<QDialog>("SettingsResult")->reject();

    // A selector that is also a setting is restored, too.
    camera.phase->properties().streamable = true;
    menu.load(write(head + "PhaseIndex\t1\nGain\t8\nPhaseIndex\t2\nGain\t9\nPhaseIndex\t1\n"));
    QVERIFY(finished.wait());
    dialog = shown<QDialog>("SettingsPreview");
    QCOMPARE(tableText(dialog).section('\n', -1), QString("PhaseIndex|2|1"));
    dialog->accept();
    QVERIFY(finished.wait());
    QCOMPARE(camera.phase->GetValue(), int64_t(1));
    QVERIFY2(writes.indexOf(QRegularExpression("Gain\\|.+\\|9\\|.*PhaseIndex2")) >= 0,
             qPrintable(writes.join('\n')));
    shown<QDialog>("SettingsResult")->reject();
    menu.putBack();
    QVERIFY(finished.wait());
    QVERIFY(camera.isPutBack());
    QCOMPARE(camera.gains[3], 1e-7);
    shown<QDialog>("SettingsResult")->reject();
    camera.phase->properties().streamable = false;

    // A file of another model is loaded after a confirmation; a damaged file is not loaded.
    menu.load(write(head + "# Device = Other::Camera\nWidth\t40\n"));
    QVERIFY(finished.wait());
    QVERIFY(!shown<QDialog>("SettingsPreview") && shown<QMessageBox>());
    for (QAbstractButton *button : shown<QMessageBox>()->buttons()) {
        if (shown<QMessageBox>()->buttonRole(button) == QMessageBox::AcceptRole)
            QTimer::singleShot(0, button, &QAbstractButton::click);
    }
    QTRY_VERIFY(shown<QDialog>("SettingsPreview"));
    shown<QDialog>("SettingsPreview")->reject();
    QTRY_VERIFY(!shown<QMessageBox>());
    menu.load(write(head + "Width\t4"));
    QVERIFY(shown<QMessageBox>() && shown<QMessageBox>()->text().contains("Line 3"));
    shown<QMessageBox>()->accept();

    // The camera is disconnected during a save.
    std::atomic<bool> isReading{false};
    std::atomic<bool> isGoing{false};
    camera.gain->onRead([&] {
        isReading = true;
        while (!isGoing)
            QThread::yieldCurrentThread();
    });
    camera.gain->changed();
    menu.save(path("gone.pfs"));
    QTRY_VERIFY(isReading);
    std::thread answer([&] { // while setNodeMap() waits for the save to end
        QThread::msleep(20);
        isGoing = true;
    });
    menu.setNodeMap(nullptr);
    answer.join();
    QVERIFY(camera.isPutBack() && !QFile::exists(path("gone.pfs")));
    QVERIFY(shown<QMessageBox>() && !menu.actions().first()->isEnabled());
    shown<QMessageBox>()->accept();

    // The list of refused values stays open after a disconnection.
    menu.setNodeMap(&camera);
    menu.load(write(head + "Width\t30\nOffsetX\t9\n"));
    QVERIFY(finished.wait());
    shown<QDialog>("SettingsPreview")->accept();
    QVERIFY(finished.wait());
    menu.setNodeMap(nullptr);
    dialog = shown<QDialog>("SettingsResult");
    QVERIFY(dialog && !dialog->findChild<QPushButton *>("putBackButton")->isEnabled());
}

void TestSettings::userSets()
{
    OrvSimulation::SimulatedCamera simulated;
    const auto map = openNodeMap(simulated);
    QWidget window;
    window.show();
    OrvSettingsMenu menu(&window);
    menu.setNodeMap(map.get());
    QMenu *sets = menu.actions().last()->menu();
    QVERIFY(menu.actions().last()->isVisible());
    QSignalSpy finished(&menu, &OrvSettingsMenu::finished);
    const auto choose = [&](int kind, int set) {
        emit sets->aboutToShow();
        sets->actions().at(kind)->menu()->actions().at(set)->trigger();
        if (auto *box = shown<QMessageBox>()) {
            for (QAbstractButton *button : box->buttons()) {
                if (box->buttonRole(button) == QMessageBox::AcceptRole)
                    button->click();
            }
        }
        return finished.wait();
    };
    QString error;
    QVERIFY(OrvCameraSettings::setValue(*map, "TriggerMode", "On", &error));
    QVERIFY(choose(1, 1)); // save in UserSet1
    QVERIFY(!shown<QMessageBox>());
    QVERIFY(OrvCameraSettings::setValue(*map, "TriggerMode", "Off", &error));
    QVERIFY(choose(0, 1)); // load it
    QCOMPARE(OrvCameraSettings::value(*map, "TriggerMode", &error), QString("On"));
    QCOMPARE(OrvCameraSettings::value(*map, "UserSetSelector", &error), QString("Default"));
    QVERIFY(choose(2, 2)); // set UserSet2 as the default
    QCOMPARE(OrvCameraSettings::value(*map, "UserSetDefault", &error), QString("UserSet2"));
    QVERIFY(choose(1, 0)); // the factory's set is read-only
    QVERIFY(shown<QMessageBox>());
}

void TestSettings::transfersOfGigECamera()
{
    WireCamera camera(ORV_DESCRIPTION, [](TestCamera::Settings &) {});
    const auto device = camera.open();
    GenApi::INodeMap &map = *device->GetParamArray()->GetNodeMap();
    camera->setMood("delay", 5);

    camera->takeAccesses();
    QElapsedTimer timer;
    timer.start();
    int all = 0;
    const Result saved = OrvCameraSettings::save(map, path("wire.pfs"), [&](int, int) {
        ++all;
        return true;
    });
    const auto time = timer.elapsed();
    std::set<unsigned> packets;
    for (const TestCamera::Access &access : camera->takeAccesses())
        packets.insert(access.packet);
    QVERIFY2(saved.error.isEmpty(), qPrintable(saved.error));
    const QString measured = QString("%1 values in %2 commands and %3 ms")
                                 .arg(saved.count)
                                 .arg(packets.size())
                                 .arg(time);
    QVERIFY2(packets.size() < 120, qPrintable(measured));

    const Result loaded = OrvCameraSettings::load(map, path("wire.pfs"));
    QVERIFY(loaded.error.isEmpty() && loaded.count > 60);
    QVERIFY(OrvCameraSettings::compare(map, path("wire.pfs")).differences.isEmpty());

    // The camera stops answering at the end, when only selectors remain to be restored.
    const QByteArray before = read(path("wire.pfs"));
    int calls = 0;
    const Result silent = OrvCameraSettings::save(map, path("wire.pfs"), [&](int, int) {
        if (++calls == all - 3)
            camera->setMood("silence", -1);
        return true;
    });
    QVERIFY(!silent.error.isEmpty());
    QCOMPARE(read(path("wire.pfs")), before);
    camera->setMood("good");
}

QTEST_MAIN(TestSettings)
#include "tst_settings.moc"

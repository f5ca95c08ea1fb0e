// SPDX-License-Identifier: MIT
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace {

struct Result
{
    int status = -1;
    QString out;
    QString err;
};

enum Display { NoDisplay, Offscreen };

Result run(const QStringList &arguments, Display display = NoDisplay)
{
    QProcess program;
    if (display == NoDisplay) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(name);
        program.setProcessEnvironment(environment);
    }
    program.start(ORV_PROGRAM, arguments);
    Result result;
    if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
        return result;
    result.status = program.exitCode();
    result.out = QString::fromUtf8(program.readAllStandardOutput());
    result.err = QString::fromUtf8(program.readAllStandardError());
    return result;
}

} // namespace

/// The program on the command line.
class TestOrvCamConfig : public QObject
{
    Q_OBJECT

private slots:
    void helpAndVersion();
    void listsFeatures_data();
    void listsFeatures();
    void listsCameras();
    void reportsFailures_data();
    void reportsFailures();
    void savesPictures();
    void runsActions();
    void settingsFiles();
    void waylandWithoutX();

private:
    QTemporaryDir m_folder;
};

void TestOrvCamConfig::helpAndVersion()
{
    for (const char *option : {"-h", "--help", "--help-all", "-v", "--version"}) {
        const Result result = run({option});
        QVERIFY2(result.status == 0 && result.err.isEmpty(), option);
        const bool isHelp = QByteArray(option).contains('h');
        QVERIFY2(result.out.contains("--list-cameras") == isHelp, option);
        QVERIFY2(result.out.startsWith(isHelp ? "Usage: " : "orvcamconfig "), option);
    }
}

void TestOrvCamConfig::listsFeatures_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected");
    const QString basic = "The second\t\n  Flag\ttrue\n  Hex\tFF\nFirst\t\n  Hex\tFF\n"
                          "  Text\t\u00c4hre \u03b2\nNowhere\t<Value not available>\n";
    QTest::newRow("basic") << QStringList() << basic;
    QString expert = basic;
    expert.replace("true\n", "true\n  Detail\t1.5\n");
    QTest::newRow("expert") << QStringList({"--visibility", "expert"}) << expert;
    QString guru = expert;
    guru.replace("Nowhere", "Secret\t\n  Flag\ttrue\nNowhere");
    QTest::newRow("guru") << QStringList("--visibility=guru") << guru;
}

void TestOrvCamConfig::listsFeatures()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, expected);
    const Result result = run(QStringList({"--xml", ORV_SAMPLE, "--list-features"}) + arguments);
    QCOMPARE(result.out, expected);
    QCOMPARE(result.err, QString());
    QCOMPARE(result.status, 0);
}

void TestOrvCamConfig::listsCameras()
{
    const Result result = run({"--simulate", "--list-cameras"});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, QString());
    QVERIFY2(result.out.startsWith(
                 "Simulated-SIM-0001\tDualFrame 12M (SIM-0001)\t192.0.2.21\tread-write\n"),
             qPrintable(result.out));
    QVERIFY(result.out.contains("\t169.254.7.21\tsubnet-mismatch\n"));
    QVERIFY(result.out.contains("\tno-access\n"));
    QVERIFY(result.out.contains("(Microscope)\t\tread-only\n"));
    QVERIFY(result.out.contains(QString::fromUtf8("\xE6\xA4\x9C\xE6\x9F\xBB")));
    QVERIFY(result.out.endsWith("\tunknown\n"));
    const QStringList lines = result.out.trimmed().split('\n');
    QCOMPARE(lines.size(), 10);
    for (const QString &line : lines)
        QCOMPARE(line.count('\t'), 3);
    // Other options accept the first field of a line as the camera's name, and the serial number.
    const QString id = lines.at(1).section('\t', 0, 0);
    for (const QString &name : {id, id.toLower(), QString("SIM-0002")}) {
        const Result named = run({"--simulate", "--list-features", "--camera", name});
        QVERIFY2(named.out.startsWith("Device Control\t\n  Device "), qPrintable(named.out));
        QVERIFY2(named.out.contains("Device Serial Number\tSIM-0002\n"), qPrintable(named.err));
        QCOMPARE(named.err, QString());
    }
    const Result controlled = run({"--simulate", "--list-features", "--camera", "SIM-0012"});
    QCOMPARE(controlled.status, 0);
    QVERIFY(controlled.out.contains("Device Serial Number\tSIM-0012\n"));
    QCOMPARE(controlled.err, QString("orvcamconfig: The camera 'Simulated-SIM-0012' is read only: "
                                     "another program controls it.\n"));
}

void TestOrvCamConfig::reportsFailures_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("words");
    const auto row = [](const QString &line, int status, const char *words) {
        QTest::newRow(qPrintable(line)) << line.split(' ') << status << QString(words);
    };
    const char *const unknownCamera = "There is no camera 'Nobody'. Found: ";
    row("--list-features", 2, "--simulate");
    row("--window door", 2, "door");
    row("--simulate --window ", 2, "window");
    row("--xml a.xml --window picker", 2, "pick");
    row("--simulate --list-cameras --camera a", 2, "--list-cameras");
    row("--simulate --window picker --camera Nobody", 1, unknownCamera);
    row("--nonsense", 2, "nonsense");
    for (const char *line : {"--xml ", "--screenshot ", "--camera ", "--list-features --xml="})
        row(line, 2, "needs a value");
    row("-platform offscreen --simulate --camera Nobody", 1, unknownCamera); // an option of Qt
    row("--simulate stray", 2, "stray");
    row("--simulate --visibility all", 2, "all");
    row("--simulate --xml a.xml", 2, "--xml");
    row("--list-features --xml /missing.xml", 1, "missing.xml: No such file");
    row("--list-features --xml /dev/null", 1, "null: the description is empty");
    row("--simulate --camera Nobody", 1, unknownCamera);
    row("--simulate --screenshot /nonexistent/folder/a.png", 1, "cannot be written");
    row("--get Hex", 2, "--simulate");
    row("--xml a.xml --get ", 2, "needs a value");
    row("--xml a.xml --set Hex", 2, "NAME=VALUE");
    row("--xml a.xml --set =1", 2, "NAME=VALUE");
    row("--xml a.xml --get Hex --screenshot a.png", 2, "--screenshot");
    row("--xml a.xml --get Hex --list-features", 2, "lists");
    row("--simulate --window main --save a", 2, "--window");
    row("--xml a.xml --json", 2, "--json");
    row("--xml a.xml --get Hex --any-model", 2, "--load");
    row("--simulate -platform nonsense", 1, "No window can be shown: ");
}

void TestOrvCamConfig::reportsFailures()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, words);
    const Result result = run(arguments, status == 2 ? NoDisplay : Offscreen);
    QCOMPARE(result.status, status);
    QCOMPARE(result.out, QString());
    QVERIFY2(result.err.startsWith("orvcamconfig: ") && result.err.contains(words),
             qPrintable(result.err));
    QCOMPARE(result.err.count('\n'), 1);
}

void TestOrvCamConfig::savesPictures()
{
    const QStringList picker = {"--simulate", "--window", "picker"};
    QList<QImage> pictures;
    for (const QStringList &arguments : {QStringList({"--xml", ORV_SAMPLE}), picker,
                                         picker + QStringList({"--camera", "SIM-0002"}),
                                         QStringList({"--simulate", "--window", "frames"}),
                                         QStringList({"--simulate", "--window", "about"})}) {
        const QString fileName = m_folder.filePath(QString::number(pictures.size()) + ".png");
        const Result result = run(arguments + QStringList({"--screenshot", fileName}), NoDisplay);
        QCOMPARE(result.err, QString());
        QCOMPARE(result.status, 0);
        const QImage picture(fileName);
        QVERIFY(picture.width() > 300 && picture.height() > 300);
        // A window with contents has more than a handful of colours.
        QSet<QRgb> colours;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                colours << picture.pixel(x, y);
        }
        QVERIFY(colours.size() > 20);
        QVERIFY(!pictures.contains(picture));
        pictures << picture;
    }
}

void TestOrvCamConfig::runsActions()
{
    const QStringList start = {"--xml", ORV_SAMPLE};
    Result result = run(start + QStringList({"--get", "Hex", "Flag", "--set", "Hex=1F", "Flag=0",
                                             "--get=Hex", "Flag", "Text", "Detail"}));
    QCOMPARE(result.err, QString());
    QCOMPARE(result.out, QString("Hex\tFF\nFlag\ttrue\nHex\t1F\nFlag\tfalse\n"
                                 "Text\t\u00c4hre \u03b2\nDetail\t1.5\n"));
    QCOMPARE(result.status, 0);

    // Reading continues after a failure; a refused change ends the program.
    result = run(start + QStringList({"--get", "None", "Nowhere", "Hex", "--set", "Flag=maybe",
                                      "--get", "Flag"}));
    QCOMPARE(result.out, QString("Hex\tFF\n"));
    QCOMPARE(result.err.count('\n'), 3);
    QCOMPARE(result.status, 1);

    result = run(start + QStringList({"--json", "--get", "Hex", "Flag", "Text", "--execute", "Hex",
                                      "--get", "Flag"}));
    QCOMPARE(result.status, 1);
    const QJsonObject document = QJsonDocument::fromJson(result.out.toUtf8()).object();
    const QJsonArray results = document["results"].toArray();
    QCOMPARE(document["ok"], QJsonValue(false));
    QCOMPARE(results.size(), 4);
    QCOMPARE(results[0].toObject()["value"], QJsonValue(255));
    QCOMPARE(results[0].toObject()["text"], QJsonValue("FF"));
    QCOMPARE(results[1].toObject()["value"], QJsonValue(true));
    QCOMPARE(results[3].toObject()["action"], QJsonValue("execute"));
    QVERIFY(!results[3].toObject()["error"].toString().isEmpty());
}

void TestOrvCamConfig::settingsFiles()
{
    const QStringList start = {"--simulate", "--camera", "SIM-0001"};
    const QString file = m_folder.filePath("a.pfs");
    Result result = run(start + QStringList({"--set", "TriggerMode=On", "--save", file, "--set",
                                             "TriggerMode=Off", "--compare", file}));
    QCOMPARE(result.out, QString("TriggerMode\tOn\tOff\n"));
    QCOMPARE(result.err, QString());
    QCOMPARE(result.status, 1);
    result = run(start + QStringList({"--load", file, "--compare", file, "--get", "TriggerMode",
                                      "--execute", "UserSetLoad", "--get", "TriggerMode"}));
    QCOMPARE(result.out, QString("TriggerMode\tOn\nTriggerMode\tOff\n"));
    QCOMPARE(result.err, QString());
    QCOMPARE(result.status, 0);

    const QStringList other = {"--xml", ORV_SAMPLE, "--load", file};
    result = run(other);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains("--any-model"), qPrintable(result.err));
    result = run(other + QStringList("--any-model"));
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains("TriggerMode: "), qPrintable(result.err));
    result = run(start + QStringList({"--json", "--load", m_folder.filePath("none.pfs")}));
    QCOMPARE(result.status, 1);
    QVERIFY(!QJsonDocument::fromJson(result.out.toUtf8()).isNull());
}

// The Wayland server does not exist: the error message must be Wayland's, not X's.
void TestOrvCamConfig::waylandWithoutX()
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("DISPLAY");
    environment.remove("QT_QPA_PLATFORM");
    environment.remove("QT_LOGGING_RULES"); // may suppress the message
    environment.insert("WAYLAND_DISPLAY", "wayland-that-is-not-there");
    environment.insert("XDG_RUNTIME_DIR", m_folder.path());
    program.setProcessEnvironment(environment);
    program.start(ORV_PROGRAM, {"--simulate"});
    QVERIFY(program.waitForFinished(60000));
    QCOMPARE(program.exitCode(), 1);
    const QByteArray complaint = program.readAllStandardError();
    QVERIFY2(complaint.startsWith("orvcamconfig: No window can be shown: "), complaint);
    QVERIFY2(complaint.contains("ayland") || complaint.contains("wl_display"), complaint);
    QCOMPARE(complaint.count('\n'), 1);
}

QTEST_GUILESS_MAIN(TestOrvCamConfig)
#include "tst_orvcamconfig.moc"

// SPDX-License-Identifier: MIT
#include <xwindow.h>

#include <QtTest>

#include <memory>

/// The program as somebody uses it on a screen: from the picker to the chosen camera's features.
class TestPickAndShow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void opensThePickedCamera();
    void returnsToThePicker();
    void cancels();
    void startsWithThePicker();
    void cleanup();

private:
    void start(const QStringList &arguments, bool isSimulated = true);
    bool waitForWindow(const QString &title);
    void press(const QStringList &keys);
    void closeWindow();
    int status();

    XView m_screen; // also keeps the server from starting anew between two programs
    QProcess m_program;
    std::unique_ptr<QTemporaryDir> m_settings; ///< of the program, instead of the user's
    QString m_window;               ///< the last that was waited for
};

namespace {

const char *const pickerTitle = "Select camera";

QString xdotool(const QStringList &arguments)
{
    QProcess process;
    process.start("xdotool", arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

} // namespace

void TestPickAndShow::init()
{
    m_settings = std::make_unique<QTemporaryDir>();
    m_program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

void TestPickAndShow::cleanup()
{
    m_program.kill();
    m_program.waitForFinished();
}

void TestPickAndShow::start(const QStringList &arguments, bool isSimulated)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_XCB_GL_INTEGRATION", "none"); // the driver never frees everything
    if (isSimulated)
        environment.insert("ORVCAM_SIMULATION", "1");
    environment.insert("XDG_CONFIG_HOME", m_settings->path());
    m_program.setProcessEnvironment(environment);
    m_program.start(ORV_PROGRAM, arguments);
    QVERIFY(m_program.waitForStarted());
}

/// Without a window manager it is not given the keyboard.
bool TestPickAndShow::waitForWindow(const QString &title)
{
    const QString pattern = '^' + QRegularExpression::escape(title) + '$';
    return QTest::qWaitFor(
        [&] {
            m_window = xdotool({"search", "--onlyvisible", "--name", pattern}).section('\n', 0, 0);
            if (m_window.isEmpty())
                return false;
            xdotool({"windowfocus", "--sync", m_window});
            return true;
        },
        10000);
}

void TestPickAndShow::press(const QStringList &keys)
{
    xdotool(QStringList{"key", "--delay", "20"} + keys);
}

void TestPickAndShow::closeWindow()
{
    m_screen.askToClose(m_window.toUInt());
}

int TestPickAndShow::status()
{
    if (m_program.state() == QProcess::Running && !m_program.waitForFinished(10000))
        return -1;
    return m_program.exitStatus() == QProcess::NormalExit ? m_program.exitCode() : -2;
}

void TestPickAndShow::opensThePickedCamera()
{
    start({"--simulate", "--window", "picker"}, false);
    QVERIFY(waitForWindow(pickerTitle));
    press({"Down", "Down", "Down", "Return"});
    QVERIFY(waitForWindow("DualFrame 12M (Inspection)"));
    closeWindow();
    QVERIFY(!m_program.waitForFinished(500));
    QVERIFY(waitForWindow("CamConfig"));
    closeWindow();
    QCOMPARE(status(), 0);
}

/// A camera that somebody else controls can be picked, but not opened.
void TestPickAndShow::returnsToThePicker()
{
    start({"--window", "picker", "--camera", "SIM-0012"});
    QVERIFY(waitForWindow(pickerTitle));
    press({"Return"});
    QVERIFY(waitForWindow("orvcamconfig"));
    press({"Return"});
    QVERIFY(waitForWindow(pickerTitle));
    press({"Up", "Return"});
    QVERIFY(waitForWindow(QString::fromUtf8("DualFrame 12M (T\xC3\xA9l\xC3\xA9objectif)")));
    QVERIFY(waitForWindow("CamConfig"));
    closeWindow(); // and the tree with it
    QCOMPARE(status(), 0);
}

void TestPickAndShow::cancels()
{
    start({"--simulate", "--window", "picker"}, false);
    QVERIFY(waitForWindow(pickerTitle));
    press({"Down", "Down", "Escape"});
    QCOMPARE(status(), 0);
}

void TestPickAndShow::startsWithThePicker()
{
    start({});
    QVERIFY(waitForWindow(pickerTitle));
    closeWindow();
    QCOMPARE(status(), 0);
}

QTEST_GUILESS_MAIN(TestPickAndShow)
#include "tst_pickandshow.moc"

// SPDX-License-Identifier: MIT
#include <xwindow.h>

#include <QProcess>
#include <QtTest>

/// The Python host as somebody uses it who only has its windows, a mouse and a keyboard.
class TestPythonHost : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void showsThePickedCamera();
    void ends_data();
    void ends();

private:
    xcb_window_t waitForWindow(const QByteArray &title);
    QImage picture() const { return m_screen.picture(m_window); }
    static void xdotool(const QStringList &arguments)
    {
        QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), arguments), 0);
    }

    XView m_screen;
    QProcess m_host;
    xcb_window_t m_window = 0;
};

xcb_window_t TestPythonHost::waitForWindow(const QByteArray &title)
{
    xcb_window_t found = 0;
    const auto look = [&] {
        for (const xcb_window_t window : m_screen.children(m_screen.screen().root)) {
            if (m_screen.title(window) == title)
                found = window;
        }
        return found != 0;
    };
    if (!QTest::qWaitFor(look, 10000))
        qFatal("There is no window '%s'", title.constData());
    return found;
}

void TestPythonHost::init()
{
    m_host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_host.start(ORV_PYTHON, {ORV_PYTHON_HOST, "--simulate", "--libraries", ORV_LIBRARIES});
    QVERIFY(m_host.waitForStarted());
    m_window = waitForWindow("Python host");
    waitForWindow("Pick a camera");
    // Without a window manager nobody else gives it the keyboard.
    xdotool({"search", "--sync", "--onlyvisible", "--name", "^Pick a camera$", "windowfocus",
             "--sync"});
}

void TestPythonHost::cleanup()
{
    m_host.kill();
    m_host.waitForFinished();
}

void TestPythonHost::showsThePickedCamera()
{
    const QRgb hostColour = picture().pixel(1, 1);
    xdotool({"key", "--delay", "20", "Down", "Down", "Return"});
    const QPoint middle(320, 400); // where the list of features is
    const auto isWhite = [&](const QPoint &point) {
        return picture().pixel(point) == QColor(Qt::white).rgb();
    };
    QTRY_VERIFY(isWhite(middle));

    m_screen.resize(m_window, QSize(900, 500));
    QTRY_COMPARE(picture().size(), QSize(900, 500));
    QTRY_VERIFY(isWhite({870, 330}));
    QCOMPARE(picture().pixel(895, 480), hostColour);

    const QImage before = picture();
    xdotool({"mousemove", "100", "90", "click", "1"});
    QTRY_VERIFY(picture() != before);
    const QImage selected = picture();
    xdotool({"key", "Right"}); // opens the category
    QTRY_VERIFY(picture() != selected);
    QVERIFY(picture().copy(20, 100, 600, 200) != selected.copy(20, 100, 600, 200));

    m_screen.askToClose(m_window);
    QVERIFY(m_host.waitForFinished());
    QCOMPARE(m_host.exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_host.exitCode(), 0);
}

void TestPythonHost::ends_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<int>("status");
    QTest::newRow("cancelled") << QStringList("Escape") << 0;
    QTest::newRow("read-only camera") << QStringList({"Down", "Down", "Down", "Down", "Down",
                                                      "Down", "Down", "Down", "Down", "Return"})
                                      << 1;
}

void TestPythonHost::ends()
{
    QFETCH(QStringList, keys);
    QFETCH(int, status);
    xdotool(QStringList({"key", "--delay", "20"}) + keys);
    QVERIFY(m_host.waitForFinished());
    QCOMPARE(m_host.exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_host.exitCode(), status);
}

QTEST_GUILESS_MAIN(TestPythonHost)
#include "tst_pythonhost.moc"

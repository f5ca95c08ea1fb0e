// SPDX-License-Identifier: MIT
#include <xwindow.h>

#include <QProcess>
#include <QtTest>

#include <csignal>

namespace {

const QPoint panelPosition(8, 40);
const QRgb hostColour = 0xffd8e4f0;
const QRgb panelColour = 0xffffffff;

} // namespace

/// The C host as somebody uses it who only has its window, a mouse and a keyboard.
class TestCHost : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fillsTheWindow();
    void input();
    void endsWithItsWindow();
    void withoutDisplay();

private:
    QImage panel() const { return m_screen.picture(m_screen.children(m_window).value(0)); }
    int rowsOfText() const;
    static void xdotool(const QStringList &arguments)
    {
        QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), arguments), 0);
    }
    static void click(int x, int y)
    {
        xdotool({QStringLiteral("mousemove"), QString::number(x), QString::number(y),
                 QStringLiteral("click"), QStringLiteral("1")});
    }

    XView m_screen;
    QProcess m_host;
    xcb_window_t m_window = 0;
};

void TestCHost::init()
{
    m_host.start(ORV_C_HOST, {QStringLiteral("--simulate")});
    QVERIFY(m_host.waitForStarted());
    m_window = 0;
    const auto find = [this] {
        for (const xcb_window_t window : m_screen.children(m_screen.screen().root)) {
            if (m_screen.title(window) == "C host")
                m_window = window;
        }
        return m_window != 0;
    };
    QTRY_VERIFY(find());
    // The tree has been painted when it no longer is the panel that is seen.
    QTRY_VERIFY(!panel().isNull() && panel().pixel(2, 2) != panelColour);
}

void TestCHost::cleanup()
{
    if (m_host.state() == QProcess::NotRunning)
        return;
    ::kill(static_cast<pid_t>(m_host.processId()), SIGTERM);
    QVERIFY(m_host.waitForFinished());
    QCOMPARE(m_host.exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_host.exitCode(), 0);
}

void TestCHost::fillsTheWindow()
{
    const QRgb treeColour = panel().pixel(2, 2);
    for (const QSize &size : {QSize(900, 700), QSize(400, 300)}) {
        m_screen.resize(m_window, size);
        const QSize panelSize(size.width() - 16, size.height() - 48);
        QTRY_COMPARE(panel().size(), panelSize);
        QTRY_COMPARE(panel().pixel(panelSize.width() - 3, panelSize.height() - 3), treeColour);
        QCOMPARE(panel().pixel(2, panelSize.height() - 3), treeColour);
        QCOMPARE(panel().pixel(panelSize.width() - 3, 2), treeColour);

        // Around the tree there is still the host.
        const QImage whole = m_screen.picture(m_window);
        QCOMPARE(whole.pixel(panelPosition.x() - 1, panelPosition.y()), hostColour);
        QCOMPARE(whole.pixel(size.width() - 1, size.height() - 1), hostColour);
    }
}

/// How many lines below each other have something dark in the column where features are named.
int TestCHost::rowsOfText() const
{
    const QImage picture = panel();
    int rows = 0;
    bool wasText = false;
    for (int y = 60; y < picture.height() - 150; ++y) {
        bool isText = false;
        for (int x = 70; x < 90; ++x)
            isText |= qGray(picture.pixel(x, y)) < 100;
        rows += isText && !wasText ? 1 : 0;
        wasText = isText;
    }
    return rows;
}

void TestCHost::input()
{
    m_screen.resize(m_window, QSize(700, 760));
    QTRY_COMPARE(panel().height(), 712);
    // The first category is opened with the keyboard, for which it is clicked.
    const QImage closed = panel();
    click(100, 92);
    QTRY_VERIFY(panel() != closed);
    const int rows = rowsOfText();
    QVERIFY(rows > 5);
    xdotool({QStringLiteral("key"), QStringLiteral("Right")});
    QTRY_VERIFY(rowsOfText() > rows);
}

void TestCHost::endsWithItsWindow()
{
    // What a window manager does when the user closes the window.
    m_screen.askToClose(m_window);
    QVERIFY(m_host.waitForFinished());
    QCOMPARE(m_host.exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_host.exitCode(), 0);
}

void TestCHost::withoutDisplay()
{
    QProcess host;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    host.setProcessEnvironment(environment);
    host.start(ORV_C_HOST, QStringList());
    QVERIFY(host.waitForFinished());
    QCOMPARE(host.exitCode(), 1);
    QCOMPARE(host.readAllStandardError(), QByteArray("c-host: no X display\n"));
}

QTEST_GUILESS_MAIN(TestCHost)
#include "tst_chost.moc"

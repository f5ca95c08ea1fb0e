// SPDX-License-Identifier: MIT
#include <programonscreen.h>

#include <csignal>

/// The C host as somebody uses it on a screen.
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
    QImage panel() const
    {
        return m_host.screen.picture(m_host.screen.children(m_host.window).value(0));
    }
    int rowsOfText() const;

    ProgramOnScreen m_host;
};

void TestCHost::init()
{
    m_host.start(ORV_C_HOST, {"--simulate"});
    QVERIFY(m_host.waitForWindow("C host"));
    // The tree has been painted when it no longer is the white panel that is seen.
    QTRY_VERIFY(!panel().isNull() && panel().pixel(2, 2) != 0xffffffff);
}

void TestCHost::cleanup()
{
    if (m_host.state() == QProcess::Running)
        ::kill(static_cast<pid_t>(m_host.processId()), SIGTERM);
    QCOMPARE(m_host.status(), 0);
}

void TestCHost::fillsTheWindow()
{
    const QRgb hostColour = 0xffd8e4f0;
    const QRgb treeColour = panel().pixel(2, 2);
    for (const QSize &size : {QSize(900, 700), QSize(400, 300)}) {
        m_host.screen.resize(m_host.window, size);
        const QSize panelSize(size.width() - 16, size.height() - 48);
        QTRY_COMPARE(panel().size(), panelSize);
        QTRY_COMPARE(panel().pixel(panelSize.width() - 3, panelSize.height() - 3), treeColour);
        QCOMPARE(panel().pixel(2, panelSize.height() - 3), treeColour);
        QCOMPARE(panel().pixel(panelSize.width() - 3, 2), treeColour);

        // Around the tree there is still the host.
        QCOMPARE(m_host.picture().pixel(7, 40), hostColour);
        QCOMPARE(m_host.picture().pixel(size.width() - 1, size.height() - 1), hostColour);
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
    m_host.screen.resize(m_host.window, QSize(700, 760));
    QTRY_COMPARE(panel().height(), 712);
    // The first category is opened with the keyboard, for which it is clicked.
    const QImage closed = panel();
    m_host.click(100, 92);
    QTRY_VERIFY(panel() != closed);
    const int rows = rowsOfText();
    QVERIFY(rows > 5);
    m_host.press({"Right"});
    QTRY_VERIFY(rowsOfText() > rows);
}

void TestCHost::endsWithItsWindow()
{
    m_host.closeWindow();
    QVERIFY(m_host.waitForFinished());
}

void TestCHost::withoutDisplay()
{
    QProcess host;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("DISPLAY");
    host.setProcessEnvironment(environment);
    host.start(ORV_C_HOST, QStringList());
    QVERIFY(host.waitForFinished());
    QCOMPARE(host.exitCode(), 1);
    QCOMPARE(host.readAllStandardError(), QByteArray("c-host: no X display\n"));
}

QTEST_GUILESS_MAIN(TestCHost)
#include "tst_chost.moc"

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

private:
    QImage panel() const
    {
        return m_host.screen.picture(m_host.screen.children(m_host.window).value(0));
    }

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

void TestCHost::input()
{
    m_host.screen.resize(m_host.window, QSize(700, 760));
    QTRY_COMPARE(panel().height(), 712);
    // The first category is opened with the keyboard, for which it is clicked.
    const QImage closed = panel();
    m_host.click(100, 92);
    QTRY_VERIFY(panel() != closed);
    const QImage selected = panel();
    m_host.press({"Right"});
    QTRY_VERIFY(panel().copy(20, 120, 600, 200) != selected.copy(20, 120, 600, 200));
}

void TestCHost::endsWithItsWindow()
{
    m_host.closeWindow();
    QVERIFY(m_host.waitForFinished());
}

QTEST_GUILESS_MAIN(TestCHost)
#include "tst_chost.moc"

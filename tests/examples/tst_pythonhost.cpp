// SPDX-License-Identifier: MIT
#include <programonscreen.h>

/// The Python host on a screen.
class TestPythonHost : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_host.end(); }
    void showsThePickedCamera();
    void exitStatus_data();
    void exitStatus();

private:
    ProgramOnScreen m_host;
    xcb_window_t m_window = 0;
};

void TestPythonHost::init()
{
    m_host.start(ORV_PYTHON, {ORV_PYTHON_HOST, "--simulate", "--libraries", ORV_LIBRARIES});
    QVERIFY(m_host.waitForWindow("Python host"));
    m_window = m_host.window;
    QVERIFY(m_host.waitForWindow("Pick a camera"));
}

void TestPythonHost::showsThePickedCamera()
{
    const auto picture = [this] { return m_host.screen.picture(m_window); };
    const QRgb hostColour = picture().pixel(1, 1);
    m_host.press({"Down", "Down", "Return"});
    const auto isWhite = [&](const QPoint &point) {
        return picture().pixel(point) == QColor(Qt::white).rgb();
    };
    QTRY_VERIFY(isWhite({320, 400})); // the place of the list of features

    m_host.screen.resize(m_window, QSize(900, 500));
    QTRY_COMPARE(picture().size(), QSize(900, 500));
    QTRY_VERIFY(isWhite({870, 330}));
    QCOMPARE(picture().pixel(895, 480), hostColour);

    const QImage before = picture();
    m_host.click(100, 90);
    QTRY_VERIFY(picture() != before);
    const QImage selected = picture();
    m_host.press({"Right"}); // opens the category
    QTRY_VERIFY(picture().copy(20, 100, 600, 200) != selected.copy(20, 100, 600, 200));

    m_host.screen.askToClose(m_window);
    QCOMPARE(m_host.status(), 0);
}

void TestPythonHost::exitStatus_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("status");
    QTest::newRow("cancelled") << "Escape" << 0;
    QTest::newRow("read-only camera") << QString("Down ").repeated(9) + "Return" << 1;
}

void TestPythonHost::exitStatus()
{
    QFETCH(QString, keys);
    m_host.press(keys.split(' '));
    QTEST(m_host.status(), "status");
}

QTEST_GUILESS_MAIN(TestPythonHost)
#include "tst_pythonhost.moc"

// SPDX-License-Identifier: MIT
#include <programonscreen.h>

#include <memory>

/// The program on a screen: from the picker to the features of the chosen camera.
class TestPickAndShow : public QObject
{
    Q_OBJECT

private slots:
    void opensThePickedCamera();
    void returnsToThePicker();
    void cancels_data();
    void cancels();
    void cleanup() { m_program.end(); }

private:
    void start(const QStringList &arguments);

    ProgramOnScreen m_program;
    std::unique_ptr<QTemporaryDir> m_settings; ///< used instead of the user's own
};

void TestPickAndShow::start(const QStringList &arguments)
{
    m_settings = std::make_unique<QTemporaryDir>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_XCB_GL_INTEGRATION", "none"); // the driver leaks memory
    if (!arguments.contains("--simulate"))
        environment.insert("ORVCAM_SIMULATION", "1");
    environment.insert("XDG_CONFIG_HOME", m_settings->path());
    m_program.setProcessEnvironment(environment);
    m_program.start(ORV_PROGRAM, arguments);
    QVERIFY(m_program.waitForWindow("Select camera"));
}

void TestPickAndShow::opensThePickedCamera()
{
    start({"--simulate", "--window", "picker"});
    m_program.press({"Down", "Down", "Down", "Return"});
    QVERIFY(m_program.waitForWindow("DualFrame 12M (Inspection)"));
    m_program.closeWindow();
    QVERIFY(!m_program.waitForFinished(500));
    QVERIFY(m_program.waitForWindow("CamConfig"));
    m_program.closeWindow();
    QCOMPARE(m_program.status(), 0);
}

/// A camera that another client controls can be picked, but not opened.
void TestPickAndShow::returnsToThePicker()
{
    start({"--window", "picker", "--camera", "SIM-0012"});
    m_program.press({"Return"});
    QVERIFY(m_program.waitForWindow("orvcamconfig"));
    m_program.press({"Return"});
    QVERIFY(m_program.waitForWindow("Select camera"));
    m_program.press({"Up", "Return"});
    QVERIFY(
        m_program.waitForWindow(QString::fromUtf8("DualFrame 12M (T\xC3\xA9l\xC3\xA9objectif)")));
    QVERIFY(m_program.waitForWindow("CamConfig"));
    m_program.closeWindow(); // closes the tree, too
    QCOMPARE(m_program.status(), 0);
}

void TestPickAndShow::cancels_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("escape") << QStringList({"--simulate", "--window", "picker"})
                            << QStringList({"Down", "Down", "Escape"});
    QTest::newRow("closed, started without a word") << QStringList() << QStringList();
}

void TestPickAndShow::cancels()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, keys);
    start(arguments);
    if (keys.isEmpty())
        m_program.closeWindow();
    else
        m_program.press(keys);
    QCOMPARE(m_program.status(), 0);
}

QTEST_GUILESS_MAIN(TestPickAndShow)
#include "tst_pickandshow.moc"

// SPDX-License-Identifier: MIT
#include <QtTest>

namespace {

// What arv-tool prints for its arguments; anything on stderr is put behind it.
QString runTool(const QStringList &arguments)
{
    QProcess tool;
    tool.start("arv-tool-0.8", QStringList{"--address=127.0.0.1"} + arguments);
    const bool isDone = tool.waitForFinished(20000) && tool.exitCode() == 0;
    const QString output = QString::fromUtf8(tool.readAllStandardOutput());
    const QString errors = QString::fromUtf8(tool.readAllStandardError());
    return isDone ? output + errors : QString("arv-tool failed: ") + errors;
}

} // namespace

// The description served by a fake GigE Vision camera whose registers start at 0. Runs in a network
// namespace of its own.
class TestCameraDescriptionWire : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void everyFeatureCanBeRead();
    void featuresCanBeWritten();

private:
    QProcess m_camera;
};

void TestCameraDescriptionWire::initTestCase()
{
    m_camera.start("arv-fake-gv-camera-0.8",
                   {"--interface=127.0.0.1", "--serial=WIRE", "--genicam=" ORV_DESCRIPTION});
    QVERIFY(m_camera.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(
        runTool({"control", "DeviceSerialNumber"}).contains("DeviceSerialNumber = WIRE"), 20000);
}

void TestCameraDescriptionWire::cleanupTestCase()
{
    m_camera.terminate();
    m_camera.waitForFinished();
}

void TestCameraDescriptionWire::everyFeatureCanBeRead()
{
    const QString values = runTool({"values"});
    QVERIFY2(values.contains("'Root'") && values.contains("'GevSCDA'"), qPrintable(values));
    QVERIFY2(!values.contains("rror") && !values.contains("ailed"), qPrintable(values));
    QVERIFY(values.contains("'FrameAB_Selector' = 'FrameA'"));
    QVERIFY(values.contains("'CurrentFrameTime' = 0 us"));
}

void TestCameraDescriptionWire::featuresCanBeWritten()
{
    runTool({"control", "Frame_ExposureLines=1234", "FrameAB_Selector=FrameB",
             "Frame_ExposureLines=77", "OUT2Selector=PulseGenerator",
             "DeviceUserDefinedName=Wire"});
    const QString read =
        runTool({"control", "Frame_ExposureLines", "FrameAB_Selector=FrameA", "Frame_ExposureLines",
                 "OUT1Selector", "OUT2Selector", "DeviceUserDefinedName"});
    QStringList found;
    QRegularExpressionMatchIterator it = QRegularExpression("= (\\w+)").globalMatch(read);
    while (it.hasNext())
        found << it.next().captured(1);
    QCOMPARE(found, (QStringList{"77", "FrameA", "1234", "Off", "PulseGenerator", "Wire"}));
}

QTEST_GUILESS_MAIN(TestCameraDescriptionWire)
#include "tst_cameradescriptionwire.moc"

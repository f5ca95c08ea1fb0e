// SPDX-License-Identifier: MIT
#include "simulation/cameraregisters.h"
#include "simulation/simulatedcamera.h"

#include <featuresteps.h>
#include <simulatednodemap.h>

#include <Base/GCException.h>

#include <QtEndian>
#include <QtTest>

using namespace OrvSimulation;

namespace {

CameraIdentity named(const char *serial)
{
    CameraIdentity identity;
    identity.serial = serial;
    return identity;
}

/// A camera, and a host that never uses cached values.
struct RunningCamera
{
    explicit RunningCamera(const CameraIdentity &identity = CameraIdentity()) : camera(identity) {}

    QString run(const QString &steps) { return m_steps.run(steps); }
    QString text(const char *name)
    {
        map->InvalidateNodes();
        return QString::fromUtf8(GenApi::CValuePtr(map->GetNode(name))->ToString().c_str());
    }
    qint64 integer(const char *name)
    {
        map->InvalidateNodes();
        return GenApi::CIntegerPtr(map->GetNode(name))->GetValue();
    }
    void write(Registers::Address address, quint32 value)
    {
        QByteArray bytes(sizeof value, '\0');
        qToBigEndian(value, bytes.data());
        camera.port()->write(address, {bytes.begin(), bytes.end()});
    }

    SimulatedCamera camera;
    const std::unique_ptr<OrvDescription::NodeMap> map = openNodeMap(camera);

private:
    FeatureSteps m_steps{*map, [this](double seconds) { camera.advance(seconds); }};
};

} // namespace

class TestSimulatedCamera : public QObject
{
    Q_OBJECT

private slots:
    void startValuesAreValid();
    void behaviour_data();
    void behaviour();
    void zeroInRegisters();
    void portsShareTheCamera();
};

void TestSimulatedCamera::startValuesAreValid()
{
    RunningCamera camera;
    QCOMPARE(camera.run("FrameMode=DualVideo PulseGenMode=Burst"), QString());
    int checked = 0;
    for (const char *frame : {"FrameA", "FrameB"}) {
        QCOMPARE(camera.run(QString("FrameAB_Selector=") + frame), QString());
        GenApi::NodeList_t nodes;
        camera.map->GetNodes(nodes);
        for (GenApi::INode *node : nodes) {
            const GenApi::CIntegerPtr integer(node);
            const GenApi::CFloatPtr real(node);
            const GenApi::CEnumerationPtr enumeration(node);
            if (!node->IsFeature() || !GenApi::IsReadable(node))
                continue;
            try {
                if (integer.IsValid())
                    integer->GetValue(true);
                else if (real.IsValid())
                    real->GetValue(true);
                else if (enumeration.IsValid())
                    QVERIFY2(GenApi::IsAvailable(enumeration->GetCurrentEntry()),
                             node->GetName().c_str());
            } catch (const GenICam::GenericException &e) {
                QFAIL(e.GetDescription());
            }
            ++checked;
        }
        QVERIFY(camera.integer("Width") >= 64 && camera.integer("Height") >= 16);
        QVERIFY(camera.integer("PayloadSize") > 0);
        QVERIFY(camera.integer("CurrentFrameTime") > camera.integer("CurrentExposureTime"));
    }
    QVERIFY2(checked > 200, QByteArray::number(checked));
}

void TestSimulatedCamera::behaviour_data()
{
    QTest::addColumn<QString>("steps");
    const auto row = [](const char *name, const char *steps) {
        QTest::newRow(name) << QString(steps);
    };
    // The description and the camera's code both contain the addresses. startValuesAreValid() finds
    // wrong addresses of values that must not be 0; this row finds the others.
    row("start values",
        "FrameAB_Selector=FrameB Strobe1Delay?100 Strobe2Reference?ReadoutStart "
        "OUT1Selector?Strobe1 AutoTrackingSpeed?Medium BlueCoefficient?384 "
        "DefectPixelThreshold?256 HotPixelCorrection?Dynamic U3VFirmwareBuildNumber?412 "
        "PixelClock?160 Frame_ExposureClocks?480 Frame_OffsetY?456 Frame_AnalogGain?x2 "
        "Frame_BlackLevel?80 GevVersionMinor?2 Frame_WdrEnable=1 Frame_WdrE3?60");
    // A value that was limited returns when the limit allows it again.
    row("limits",
        "Frame_LineTime=700 Frame_ExposureClocks=699 SensorADCBitDepth=Bit12 Frame_LineTime?960 "
        "SensorADCBitDepth=Bit10 Frame_LineTime?700 Frame_LineTime=650 Frame_ExposureClocks?649 "
        "Frame_FixedFramePeriodEnable=1 Frame_FixedFramePeriodValue=100 Frame_ExposureLines?99 "
        "CurrentExposureTime?406 Frame_FixedFramePeriodEnable=0 Frame_ExposureLines?1600 "
        "SensorClockDivider=64 PixelClock?80");

    // The read-out has 3072 image lines and 38 others; 160 clocks are a microsecond.
    row("read-out decides", "Frame_LineTime=1000 Frame_ExposureLines=1 Frame_ExposureClocks=600 "
                            "CurrentExposureTime?10 CurrentFrameTime?19437");
    row("exposure decides", "Frame_LineTime=1000 Frame_ExposureLines=6398 Frame_ExposureClocks=0 "
                            "CurrentExposureTime?39987 CurrentFrameTime?40000 "
                            "Frame_ExposureControl=Off CurrentFrameTime?19437");
    row("decimation",
        "Frame_DecimationMode=Subsampling Frame_SubsamplingM=M8 Width?512 Frame_HeightActual?384 "
        "Width=128 Frame_Width?1024 Frame_DecimationMode=Average Frame_WidthActual?512 "
        "PayloadSize?786432 Frame_OffsetX.Max?3072");
    row("access",
        "TriggerSoftware:NA NumberOfFrameAs:NA Frame_ExposureLines:RW PulseGenMode:RW "
        "TriggerMode=On TriggerSource=Software FrameMode=DualVideo Frame_ExposureControl=Trigger "
        "PulseGenEnable=1 TriggerSoftware:RW NumberOfFrameAs:RW Frame_ExposureLines:RO "
        "PulseGenMode:RO CoolerEnable:NI PixelFormat!BayerRG12 SensorADCBitDepth=Bit12 "
        "PixelFormat=BayerRG12");
    row("commands", "TriggerMode=On TriggerSource=Software TriggerSoftware=1 "
                    "TriggerSoftware?1 TriggerCount?1 +5 TimestampLatch=1 +2.5 "
                    "TimestampLatchValue?5000000000 +-3 +nan UpTime?7 TriggerCount?1");
    row("user sets",
        "Frame_ExposureLines=55 PixelFormat=Mono8 LUTIndex=100 LUTValue=7 "
        "UserSetSelector=UserSet2 UserSetSave=1 +0 UserSetSelector=Default UserSetSave:RO "
        "UserSetLoad=1 +0 Frame_ExposureLines?1600 PixelFormat?BayerRG8 LUTValue?1605 "
        "UserSetSelector?Default UserSetSelector=UserSet2 UserSetLoad=1 +0 "
        "Frame_ExposureLines?55 PixelFormat?Mono8 LUTValue?7");
    row("service key", "ServiceKey=1 +0 ServiceValue:NA ServiceKey=1330796033 +0 ServiceValue:RW "
                       "ServiceKey=0 +0 ServiceValue:NA");

    const QString pulses = "TriggerMode=On TriggerSource=PulseGenerator PulseGenMode=%1 "
                           "PulseGenPeriod=10000 PulseGenEnable=1 +%2 +%2 PulseGenPulseCount?%3 "
                           "TriggerCount?%3 PulseGenEnable?%4";
    row("burst", qPrintable(pulses.arg("Burst", "0.0475", "9", "1")));
    row("burst that ends", qPrintable(pulses.arg("Burst", "0.05", "10", "0")));
    row("pulses", qPrintable(pulses.arg("Continuous", "30", "6000", "1")));
    row("white balance", "AutoTrackingSpeed=Slow BalanceWhiteAuto=Once +0.2 GreenCoefficient?256 "
                         "BalanceWhiteAuto?Once +60 BalanceWhiteAuto?Off");

    for (const char *names :
         {"FrameAB_Selector 0 1 Frame_ExposureLines", "FrameAB_Selector 0 1 Frame_LineTimeReg",
          "FrameAB_Selector 0 1 Frame_WdrE3Reg", "LUTSelector 0 3 LUTValue",
          "LUTIndex 0 255 LUTValue", "LineSelector 1 2 LineFormat",
          "UserOutputSelector 0 1 UserOutputValueReg", "ChunkSelector 0 3 ChunkEnableReg",
          "EventSelector 2 3 EventNotification", "ServiceAddress 0 15 ServiceValue"}) {
        QString steps = "ServiceKey=1330796033 +0 %1=%2 %4=1 %1=%3 %4=0 %1=%2 %4?1 %1=%3 %4?0";
        for (const QString &name : QString(names).split(' '))
            steps = steps.arg(name);
        QTest::newRow(names) << steps;
    }
}

void TestSimulatedCamera::behaviour()
{
    QFETCH(QString, steps);
    QCOMPARE(RunningCamera().run(steps), QString());
}

/// Values that a feature rejects, but a register accepts.
void TestSimulatedCamera::zeroInRegisters()
{
    RunningCamera camera;
    camera.write(Registers::PixelClock, 0);
    QCOMPARE(camera.run("CurrentExposureTime?0 ResultingFrameRate?0.00"), QString());
    camera.write(Registers::PulseGenPeriod, 0);
    QCOMPARE(camera.run("PulseGenMode=Continuous PulseGenEnable=1 +0.001 PulseGenPulseCount?1000"),
             QString());
}

void TestSimulatedCamera::portsShareTheCamera()
{
    std::unique_ptr<OrvCameraIo::Port> port = SimulatedCamera(named("ONE")).port();
    QVERIFY(SimulatedCamera::isOpen("ONE"));
    const auto upTime = [&port] {
        std::vector<OrvCameraIo::ReadTransfer> batch{{{Registers::UpTime, 4}, {}, {}}};
        port->read(batch);
        return batch[0].status == OrvCameraIo::Status::Done ? int(batch[0].bytes[3]) : -1;
    };
    QTRY_COMPARE(upTime(), 1); // the main loop advances the time

    // A register that extends beyond the camera's, and one whose end overflows.
    for (const uint64_t address : {uint64_t(0xFFFE), UINT64_MAX - 1}) {
        std::vector<OrvCameraIo::ReadTransfer> batch{{{address, 4}, {}, {}}};
        port->read(batch);
        QVERIFY(batch[0].status == OrvCameraIo::Status::InvalidAddress);
        QVERIFY(port->write(address, {1, 2, 3, 4}) == OrvCameraIo::Status::InvalidAddress);
    }
    port.reset();
    QVERIFY(!SimulatedCamera::isOpen("ONE"));
}

QTEST_GUILESS_MAIN(TestSimulatedCamera)
#include "tst_simulatedcamera.moc"

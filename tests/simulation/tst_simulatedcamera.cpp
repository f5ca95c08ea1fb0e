// SPDX-License-Identifier: MIT
#include "simulation/cameraregisters.h"
#include "simulation/simulatedcamera.h"

#include <aravis/nodemap.h>
#include <featuresteps.h>

#include <Base/GCException.h>

#undef signals // GLib has members of that name
#include <arv.h>

#include <QtTest>

using namespace OrvSimulation;

namespace {

CameraIdentity named(const char *serial)
{
    CameraIdentity identity;
    identity.serial = serial;
    return identity;
}

// Features of a camera by name, through Aravis's own nodes; a failure fails the test.
class Features
{
public:
    explicit Features(const SimulatedCamera &camera)
        : m_device(camera.device()), m_genicam(arv_device_get_genicam(camera.device()))
    {
        // The camera changes registers behind the back of the nodes.
        arv_gc_set_register_cache_policy(m_genicam, ARV_REGISTER_CACHE_POLICY_DISABLE);
    }

    ArvGcNode *node(const char *name) const { return arv_gc_get_node(m_genicam, name); }

    qint64 integer(const char *name) const
    {
        return arv_device_get_integer_feature_value(m_device, name, &m_error);
    }
    void set(const char *name, qint64 value)
    {
        arv_device_set_integer_feature_value(m_device, name, value, &m_error);
    }
    QString text(const char *name) const
    {
        return arv_device_get_string_feature_value(m_device, name, &m_error);
    }
    void choose(const char *name, const char *entry)
    {
        arv_device_set_string_feature_value(m_device, name, entry, &m_error);
    }
    void turn(const char *name, bool on)
    {
        arv_device_set_boolean_feature_value(m_device, name, on, &m_error);
    }
    double real(const char *name) const
    {
        return arv_device_get_float_feature_value(m_device, name, &m_error);
    }
    bool isAvailable(const char *name) const
    {
        return arv_device_is_feature_available(m_device, name, &m_error) != 0;
    }

    ~Features()
    {
        if (m_error)
            QTest::qFail(m_error->message, __FILE__, __LINE__);
        g_clear_error(&m_error);
    }

private:
    ArvDevice *m_device;
    ArvGc *m_genicam;
    mutable GError *m_error = nullptr;
};

QStringList featuresBelow(const Features &features, const char *category)
{
    QStringList names;
    for (const GSList *i = arv_gc_category_get_features(ARV_GC_CATEGORY(features.node(category)));
         i; i = i->next) {
        const auto *name = static_cast<const char *>(i->data);
        if (ARV_IS_GC_CATEGORY(features.node(name)))
            names += featuresBelow(features, name);
        else
            names << name;
    }
    return names;
}

} // namespace

class TestSimulatedCamera : public QObject
{
    Q_OBJECT

private slots:
    void startValuesAreValid_data();
    void startValuesAreValid();
    void identityIsWhatItWasMadeWith();
    void behaviour_data();
    void behaviour();
    void whiteBalance_data();
    void whiteBalance();
    void temperatureDrifts();
    void zeroes();
    void openingTwiceIsRefused();
    void timePassesInTheMainLoop();
};

// Both frames, with everything switched on that makes further features available.
void TestSimulatedCamera::startValuesAreValid_data()
{
    QTest::addColumn<bool>("everythingOn");
    QTest::newRow("as switched on") << false;
    QTest::newRow("with all options") << true;
}

void TestSimulatedCamera::startValuesAreValid()
{
    QFETCH(bool, everythingOn);
    const SimulatedCamera camera;
    Features features(camera);
    int checked = 0;
    for (const char *frame : {"FrameA", "FrameB"}) {
        features.choose("FrameAB_Selector", frame);
        if (everythingOn) {
            features.choose("FrameMode", "DualVideo");
            features.choose("PulseGenMode", "Burst");
            features.choose("Frame_DecimationMode", "Subsampling");
            features.turn("Frame_FixedFramePeriodEnable", true);
            features.turn("Frame_WdrEnable", true);
        }
        for (const QString &name : featuresBelow(features, "Root")) {
            const QByteArray key = name.toLatin1();
            ArvGcNode *node = features.node(key);
            QVERIFY2(node, key);
            if (ARV_IS_GC_COMMAND(node) || !features.isAvailable(key))
                continue;
            GError *error = nullptr;
            if (ARV_IS_GC_ENUMERATION(node)) {
                guint count = 0;
                const gint64 value = features.integer(key);
                gint64 *values = arv_gc_enumeration_dup_available_int_values(
                    ARV_GC_ENUMERATION(node), &count, &error);
                QVERIFY2(std::count(values, values + count, value) == 1, key);
                g_free(values);
            } else if (ARV_IS_GC_INTEGER_NODE(node)) {
                const gint64 value = features.integer(key);
                const gint64 minimum = arv_gc_integer_get_min(ARV_GC_INTEGER(node), &error);
                const gint64 maximum = arv_gc_integer_get_max(ARV_GC_INTEGER(node), &error);
                QVERIFY2(value >= minimum && value <= maximum, key);
                g_clear_error(&error); // a formula has no increment
                const gint64 step = arv_gc_integer_get_inc(ARV_GC_INTEGER(node), &error);
                g_clear_error(&error);
                QVERIFY2((value - minimum) % step == 0, key);
            } else if (ARV_IS_GC_FLOAT_NODE(node)) {
                const double value = features.real(key);
                QVERIFY2(value >= arv_gc_float_get_min(ARV_GC_FLOAT(node), &error), key);
                QVERIFY2(value <= arv_gc_float_get_max(ARV_GC_FLOAT(node), &error), key);
            }
            QVERIFY2(!error, error ? error->message : "");
            ++checked;
        }
        QVERIFY(features.integer("Width") >= 64);
        QVERIFY(features.integer("Height") >= 16);
        QVERIFY(features.integer("PayloadSize") > 0);
        QVERIFY(features.integer("CurrentFrameTime") > features.integer("CurrentExposureTime"));
    }
    QVERIFY(checked > 200);
}

void TestSimulatedCamera::identityIsWhatItWasMadeWith()
{
    CameraIdentity identity = named("SIM-4711");
    identity.model = QString(100, 'M').toStdString();
    identity.userName = "Left \xC3\xA4";
    identity.ipAddress = 0x0A000102;
    identity.macAddress = 0xFFFF0011AABBCCDD;
    const SimulatedCamera camera(identity);
    const Features features(camera);
    QCOMPARE(features.text("DeviceManufacturerName"), QString("Orv Simulation"));
    QCOMPARE(features.text("DeviceModelName"), QString(31, 'M'));
    QCOMPARE(features.text("DeviceSerialNumber"), QString("SIM-4711"));
    QCOMPARE(features.text("DeviceUserDefinedName"), QString::fromUtf8("Left \xC3\xA4"));
    QCOMPARE(features.integer("GevCurrentIPAddress"), Q_INT64_C(0x0A000102));
    QCOMPARE(features.integer("GevMACAddress"), Q_INT64_C(0x0011AABBCCDD));
    QCOMPARE(camera.identity().serial, std::string("SIM-4711"));
}

void TestSimulatedCamera::behaviour_data()
{
    QTest::addColumn<QString>("steps");
    const auto row = [](const char *name, const char *steps) {
        QTest::newRow(name) << QString(steps);
    };
    // The description and the camera's own code each have the addresses.
    row("start values",
        "FrameAB_Selector=FrameB PixelFormat?BayerRG8 SensorClockDivider?32 StreamBufferDepth?8 "
        "PulseGenWidth?1000 PulseGenPeriod?10000 Strobe1Mode?BothFrames Strobe1Delay?100 "
        "Strobe1Width?1000 Strobe2Mode?Off Strobe2Reference?ReadoutStart Strobe2Width?500 "
        "OUT1Selector?Strobe1 OUT2Polarity?ActiveHigh OUT2Selector?ExposureActive "
        "AutoTrackingSpeed?Medium BlueCoefficient?384 Gamma?1.00 DefectPixelThreshold?256 "
        "HotPixelCorrection?Dynamic RgsID?1042 FirmwareBuild?1187 U3VFirmwareBuildNumber?412 "
        "PixelClock?160 Frame_ExposureClocks?480 Frame_OffsetY?456 Frame_Width?3840 "
        "Frame_AnalogGain?x2 Frame_DigitalFineGain?32 Frame_BlackLevel?80 "
        "GevVersionMinor?2 GevSCPSPacketSize?1500 Frame_WdrEnable=1 Frame_WdrP3?Percent80 "
        "Frame_WdrE3?60 Frame_DecimationMode=Subsampling Frame_SubsamplingP?P2");
    // What is set comes back when the limit does.
    row("limits",
        "Frame_LineTime=700 Frame_ExposureClocks=699 SensorADCBitDepth=Bit12 Frame_LineTime?960 "
        "SensorADCBitDepth=Bit10 Frame_LineTime?700 Frame_LineTime=650 Frame_ExposureClocks?649 "
        "Frame_FixedFramePeriodEnable=1 Frame_FixedFramePeriodValue=100 Frame_ExposureLines?99 "
        "CurrentExposureTime?406 Frame_FixedFramePeriodEnable=0 Frame_ExposureLines?1600 "
        "SensorClockDivider=64 PixelClock?80");
    row("dual video shares the line time",
        "FrameMode=DualVideo Frame_LineTime=1500 FrameAB_Selector=FrameB Frame_LineTime?1500 "
        "FrameMode=FrameB Frame_LineTime?1200");

    // 3072 lines of the image and 38 more are read out; 160 clocks are a microsecond.
    row("read-out decides", "Frame_LineTime=1000 Frame_ExposureLines=1 Frame_ExposureClocks=600 "
                            "CurrentExposureTime?10 CurrentFrameTime?19437");
    row("exposure decides", "Frame_LineTime=1000 Frame_ExposureLines=6398 Frame_ExposureClocks=0 "
                            "CurrentExposureTime?39987 CurrentFrameTime?40000 "
                            "Frame_ExposureControl=Off CurrentFrameTime?19437");
    row("fixed period", "Frame_LineTime=1600 Frame_ExposureLines=100 Frame_ExposureClocks=0 "
                        "Frame_FixedFramePeriodEnable=1 Frame_FixedFramePeriodValue=5000 "
                        "CurrentExposureTime?1000 CurrentFrameTime?50000");
    row("fractions are cut", "Frame_LineTime=960 Frame_ExposureLines=0 Frame_ExposureClocks=799 "
                             "CurrentExposureTime?4 CurrentFrameTime?18660");
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
    row("commands", "TriggerMode=On TriggerSource=Software TriggerSoftware=1 TriggerSoftware?0 +0 "
                    "TriggerSoftware?1 TriggerCount?1 +5 TimestampLatch=1 +2.5 "
                    "TimestampLatchValue?7500000000 +-3 +nan UpTime?7 TriggerCount?1");
    row("user sets",
        "Frame_ExposureLines=55 PixelFormat=Mono8 LUTIndex=100 LUTValue=7 "
        "UserSetSelector=UserSet2 UserSetSave=1 +0 UserSetSelector=Default UserSetSave:RO "
        "UserSetLoad=1 +0 Frame_ExposureLines?1600 PixelFormat?BayerRG8 LUTValue?1605 "
        "UserSetSelector?Default UserSetSelector=UserSet2 UserSetLoad=1 +0 "
        "Frame_ExposureLines?55 PixelFormat?Mono8 LUTValue?7");
    row("outputs", "OUT1Selector=UserOutput OUT2Selector=PulseGenerator OUT2Polarity=ActiveLow +0 "
                   "LineStatusAll?8 UserOutputValue=1 PulseGenEnable=1 +0 LineStatusAll?4 "
                   "LineSelector=OUT2 LineStatus?0 +0.0015 LineStatus?1");
    row("service key", "ServiceKey=1 +0 ServiceValue:NA ServiceKey=1330796033 +0 ServiceValue:RW "
                       "ServiceKey=0 +0 ServiceValue:NA");

    const QString pulses = "TriggerMode=On TriggerSource=PulseGenerator PulseGenMode=%1 "
                           "PulseGenGranularity=%2 PulseGenPeriod=%3 PulseGenEnable=1 +%4 +%4 "
                           "PulseGenPulseCount?%5 TriggerCount?%5 PulseGenEnable?%6 "
                           "PulseGenEnable=0 +1 PulseGenEnable=1 +0 PulseGenPulseCount?0";
    const auto pulse = [&pulses](const QString &values) {
        QString steps = pulses;
        for (const QString &value : values.split(' '))
            steps = steps.arg(value);
        QTest::newRow(qPrintable(values)) << steps;
    };
    pulse("Burst Us1 10000 0.0475 9 1");
    pulse("Burst Us1 10000 0.05 10 0");
    pulse("Burst Ms1 1500 0.008 8 1");
    pulse("Continuous Us1 10000 30 6000 1");

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
    SimulatedCamera camera;
    const auto map = OrvAravis::NodeMap::open(camera.device());
    FeatureSteps features(*map, [&](double seconds) { camera.advance(seconds); });
    QCOMPARE(features.run(steps), QString());
}

void TestSimulatedCamera::whiteBalance_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QByteArray>("speed");
    QTest::addColumn<bool>("arrivesInThreeSeconds");
    QTest::newRow("off") << QByteArray("Off") << QByteArray("Fast") << false;
    QTest::newRow("continuous") << QByteArray("Continuous") << QByteArray("Fast") << false;
    QTest::newRow("once, fast") << QByteArray("Once") << QByteArray("Fast") << true;
    QTest::newRow("once, slow") << QByteArray("Once") << QByteArray("Slow") << false;
}

void TestSimulatedCamera::whiteBalance()
{
    QFETCH(QByteArray, mode);
    QFETCH(bool, arrivesInThreeSeconds);
    QFETCH(QByteArray, speed);
    SimulatedCamera camera;
    Features features(camera);
    const qint64 red = features.integer("RedCoefficient");
    features.choose("AutoTrackingSpeed", speed);
    features.choose("BalanceWhiteAuto", mode);
    for (int i = 0; i < 15; ++i)
        camera.advance(0.2);
    QCOMPARE(features.integer("RedCoefficient") != red, mode != "Off");
    QCOMPARE(features.integer("GreenCoefficient"), Q_INT64_C(256));
    if (mode == "Once") {
        QCOMPARE(features.text("BalanceWhiteAuto"),
                 QString(arrivesInThreeSeconds ? "Off" : "Once"));
        camera.advance(60);
        QCOMPARE(features.text("BalanceWhiteAuto"), QString("Off"));
        QVERIFY(qAbs(features.integer("RedCoefficient") - 412) <= 12);
    }
    const qint64 now = features.integer("BlueCoefficient");
    for (int i = 0; i < 75; ++i)
        camera.advance(0.2);
    QCOMPARE(features.integer("BlueCoefficient") != now, mode == "Continuous");

    // It starts from what the host sets.
    features.set("RedCoefficient", 4000);
    camera.advance(0.2);
    QCOMPARE(features.integer("RedCoefficient") < 4000, mode == "Continuous");
    QVERIFY(features.integer("RedCoefficient") > 2000);
}

void TestSimulatedCamera::temperatureDrifts()
{
    SimulatedCamera camera;
    const Features features(camera);
    QSet<qint64> degrees;
    for (int minute = 0; minute < 60; ++minute) {
        camera.advance(60);
        const double temperature = features.real("DeviceTemperature");
        QVERIFY(temperature > 30 && temperature < 55);
        QCOMPARE(features.integer("CurrentTemperature"), qRound64(temperature));
        degrees << qRound64(temperature);
    }
    QVERIFY(degrees.size() > 1);
}

/// What no feature allows, but a register takes.
void TestSimulatedCamera::zeroes()
{
    SimulatedCamera camera;
    Features features(camera);
    arv_device_write_register(camera.device(), Registers::PixelClock, 0, nullptr);
    QCOMPARE(features.integer("CurrentExposureTime"), Q_INT64_C(0));
    QCOMPARE(features.real("ResultingFrameRate"), 0.0);

    arv_device_write_register(camera.device(), Registers::PulseGenPeriod, 0, nullptr);
    features.choose("PulseGenMode", "Continuous");
    features.turn("PulseGenEnable", true);
    camera.advance(0.001);
    QCOMPARE(features.integer("PulseGenPulseCount"), Q_INT64_C(1000));
}

void TestSimulatedCamera::openingTwiceIsRefused()
{
    {
        const SimulatedCamera camera(named("ONE"));
        QVERIFY(SimulatedCamera::isOpen("ONE"));
        try {
            const SimulatedCamera again(named("ONE"));
            QFAIL("opened twice");
        } catch (const GenICam::AccessException &error) {
            QVERIFY(QByteArray(error.GetDescription()).contains("ONE"));
        }
        QVERIFY(SimulatedCamera::isOpen("ONE")); // the refusal has not closed it
    }
    QVERIFY(!SimulatedCamera::isOpen("ONE"));
    const SimulatedCamera again(named("ONE"));
    QVERIFY_EXCEPTION_THROWN(SimulatedCamera(named("")), GenICam::InvalidArgumentException);

    // The description is ours for our cameras only.
    ArvDevice *other = arv_fake_device_new("ONE", nullptr);
    QVERIFY(other);
    QVERIFY(!arv_device_get_feature(other, "FrameAB_Selector"));
    g_object_unref(other);
}

void TestSimulatedCamera::timePassesInTheMainLoop()
{
    auto camera = std::make_unique<SimulatedCamera>();
    auto *device = static_cast<ArvDevice *>(g_object_ref(camera->device()));
    const auto write = [device] {
        arv_device_write_register(device, Registers::TriggerSoftware, 1, nullptr);
    };
    const auto isDoneWithin = [device](qint64 milliseconds) {
        QElapsedTimer timer;
        timer.start();
        guint32 value = 1;
        while (value != 0 && timer.elapsed() < milliseconds) {
            g_main_context_iteration(nullptr, FALSE);
            arv_device_read_register(device, Registers::TriggerSoftware, &value, nullptr);
            QThread::msleep(5);
        }
        return value == 0;
    };
    write();
    QVERIFY(isDoneWithin(5000));
    camera.reset();
    write();
    QVERIFY(!isDoneWithin(500));
    g_object_unref(device);
}

QTEST_GUILESS_MAIN(TestSimulatedCamera)
#include "tst_simulatedcamera.moc"

// SPDX-License-Identifier: MIT
#include "simulation/cameraregisters.h"
#include "simulation/simulatedcamera.h"

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
    bool boolean(const char *name) const
    {
        return arv_device_get_boolean_feature_value(m_device, name, &m_error) != 0;
    }
    void turn(const char *name, bool on)
    {
        arv_device_set_boolean_feature_value(m_device, name, on, &m_error);
    }
    double real(const char *name) const
    {
        return arv_device_get_float_feature_value(m_device, name, &m_error);
    }
    void execute(const char *name) { arv_device_execute_command(m_device, name, &m_error); }
    bool isAvailable(const char *name) const
    {
        return arv_device_is_feature_available(m_device, name, &m_error) != 0;
    }
    bool isLocked(const char *name) const
    {
        return arv_gc_feature_node_is_locked(ARV_GC_FEATURE_NODE(node(name)), &m_error) != 0;
    }

    quint32 memory(Registers::Address address) const
    {
        guint32 value = 0;
        arv_device_read_register(m_device, address, &value, &m_error);
        return value;
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
    void startValuesAreThoseOfTheirFeature();
    void identityIsWhatItWasMadeWith();
    void everySelectorSelects_data();
    void everySelectorSelects();
    void limitsTakeTheirValuesAlong();
    void timesFollowTheSettings_data();
    void timesFollowTheSettings();
    void decimationMakesTheImageSmaller();
    void accessFollowsOtherFeatures();
    void temperatureDrifts();
    void whiteBalance_data();
    void whiteBalance();
    void pulseGenerator_data();
    void pulseGenerator();
    void commandsEndByThemselves();
    void userSets();
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

// The description and the camera's own code each have the addresses.
void TestSimulatedCamera::startValuesAreThoseOfTheirFeature()
{
    const SimulatedCamera camera;
    Features features(camera);
    features.choose("FrameAB_Selector", "FrameB");
    const QStringList expected =
        QString(
            "PixelFormat=BayerRG8 SensorClockDivider=32 StreamBufferDepth=8 PulseGenWidth=1000 "
            "PulseGenPeriod=10000 Strobe1Mode=BothFrames Strobe1Delay=100 Strobe1Width=1000 "
            "Strobe2Mode=Off Strobe2Reference=ReadoutStart Strobe2Width=500 OUT1Selector=Strobe1 "
            "OUT2Polarity=ActiveHigh OUT2Selector=ExposureActive AutoTrackingSpeed=Medium "
            "BlueCoefficient=384 Gamma=1 DefectPixelThreshold=256 HotPixelCorrection=Dynamic "
            "RgsID=1042 FirmwareBuild=1187 U3VFirmwareBuildNumber=412 PixelClock=160 "
            "Frame_ExposureClocks=480 Frame_OffsetY=456 Frame_Width=3840 Frame_SubsamplingP=P2 "
            "Frame_AnalogGain=x2 Frame_DigitalFineGain=32 Frame_BlackLevel=80 "
            "Frame_WdrP3=Percent80 Frame_WdrE3=60 GevVersionMinor=2 GevSCPSPacketSize=1500")
            .split(' ');
    for (const QString &pair : expected) {
        const QByteArray name = pair.section('=', 0, 0).toLatin1();
        auto *node = ARV_GC_FEATURE_NODE(features.node(name));
        QVERIFY2(node, name);
        const QString value = arv_gc_feature_node_get_value_as_string(node, nullptr);
        QCOMPARE(QString(name) + '=' + value, pair);
    }
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

void TestSimulatedCamera::everySelectorSelects_data()
{
    QTest::addColumn<QByteArray>("selector");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<QByteArray>("selected");
    const auto row = [](const char *selector, int first, int second, const char *selected) {
        QTest::newRow(selected) << QByteArray(selector) << first << second << QByteArray(selected);
    };
    row("FrameAB_Selector", 0, 1, "Frame_ExposureLines");
    row("FrameAB_Selector", 0, 1, "Frame_LineTimeReg");
    row("FrameAB_Selector", 0, 1, "Frame_WdrE3");
    row("LUTSelector", 0, 3, "LUTValue");
    row("LUTIndex", 0, 255, "LUTValue");
    row("LineSelector", 1, 2, "LineFormat");
    row("UserOutputSelector", 0, 1, "UserOutputValueReg");
    row("ChunkSelector", 0, 3, "ChunkEnableReg");
    row("EventSelector", 2, 3, "EventNotification");
    row("ServiceAddress", 0, 15, "ServiceValue");
}

void TestSimulatedCamera::everySelectorSelects()
{
    QFETCH(QByteArray, selector);
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(QByteArray, selected);
    const SimulatedCamera camera;
    Features features(camera);
    features.set(selector, first);
    features.set(selected, 1);
    features.set(selector, second);
    features.set(selected, 0);
    features.set(selector, first);
    QCOMPARE(features.integer(selected), Q_INT64_C(1));
    features.set(selector, second);
    QCOMPARE(features.integer(selected), Q_INT64_C(0));
}

// What is set comes back when the limit does.
void TestSimulatedCamera::limitsTakeTheirValuesAlong()
{
    const SimulatedCamera camera;
    Features features(camera);
    features.set("Frame_LineTime", 700);
    features.set("Frame_ExposureClocks", 699);
    features.choose("SensorADCBitDepth", "Bit12");
    QCOMPARE(features.integer("Frame_LineTime"), Q_INT64_C(960));
    features.choose("SensorADCBitDepth", "Bit10");
    QCOMPARE(features.integer("Frame_LineTime"), Q_INT64_C(700));
    features.set("Frame_LineTime", 650);
    QCOMPARE(features.integer("Frame_ExposureClocks"), Q_INT64_C(649));

    features.turn("Frame_FixedFramePeriodEnable", true);
    features.set("Frame_FixedFramePeriodValue", 100);
    QCOMPARE(features.integer("Frame_ExposureLines"), Q_INT64_C(99));
    QCOMPARE(features.integer("CurrentExposureTime"), gint64((99 * 650 + 649) / 160));
    features.turn("Frame_FixedFramePeriodEnable", false);
    QCOMPARE(features.integer("Frame_ExposureLines"), Q_INT64_C(1600));

    features.set("SensorClockDivider", 64);
    QCOMPARE(features.integer("PixelClock"), Q_INT64_C(80));

    // In dual video both frames share their line time.
    features.choose("FrameMode", "DualVideo");
    features.set("Frame_LineTime", 1500);
    features.choose("FrameAB_Selector", "FrameB");
    QCOMPARE(features.integer("Frame_LineTime"), Q_INT64_C(1500));
    features.choose("FrameMode", "FrameB");
    QCOMPARE(features.integer("Frame_LineTime"), Q_INT64_C(1200));
}

void TestSimulatedCamera::timesFollowTheSettings_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("clocks");
    QTest::addColumn<int>("lineTime");
    QTest::addColumn<int>("fixedPeriod");
    QTest::addColumn<int>("exposureTime");
    QTest::addColumn<int>("frameTime");

    // 3072 lines of the image and 38 more are read out; 160 clocks are a microsecond.
    QTest::newRow("read-out decides") << "Internal" << 1 << 600 << 1000 << 0 << 10 << 19437;
    QTest::newRow("exposure decides") << "Internal" << 6398 << 0 << 1000 << 0 << 39987 << 40000;
    QTest::newRow("fixed period") << "Internal" << 100 << 0 << 1600 << 5000 << 1000 << 50000;
    QTest::newRow("not controlled") << "Off" << 6398 << 0 << 1000 << 0 << 19437 << 19437;
    QTest::newRow("fractions are cut") << "Internal" << 0 << 799 << 960 << 0 << 4 << 18660;
}

void TestSimulatedCamera::timesFollowTheSettings()
{
    QFETCH(QString, control);
    QFETCH(int, lines);
    QFETCH(int, clocks);
    QFETCH(int, lineTime);
    QFETCH(int, fixedPeriod);
    const SimulatedCamera camera;
    Features features(camera);
    features.set("Frame_LineTime", lineTime);
    features.set("Frame_ExposureLines", lines);
    features.set("Frame_ExposureClocks", clocks);
    features.choose("Frame_ExposureControl", control.toLatin1());
    if (fixedPeriod > 0) {
        features.turn("Frame_FixedFramePeriodEnable", true);
        features.set("Frame_FixedFramePeriodValue", fixedPeriod);
    }
    QTEST(int(features.integer("CurrentExposureTime")), "exposureTime");
    QTEST(int(features.integer("CurrentFrameTime")), "frameTime");

    // A camera that does not tell its pixel clock has no times, but no error either.
    arv_device_write_register(camera.device(), Registers::PixelClock, 0, nullptr);
    QCOMPARE(features.integer("CurrentExposureTime"), Q_INT64_C(0));
    QCOMPARE(features.real("ResultingFrameRate"), 0.0);
}

void TestSimulatedCamera::decimationMakesTheImageSmaller()
{
    const SimulatedCamera camera;
    Features features(camera);
    features.choose("Frame_DecimationMode", "Subsampling");
    features.choose("Frame_SubsamplingM", "M8");
    QCOMPARE(features.integer("Width"), Q_INT64_C(512));
    QCOMPARE(features.integer("Frame_HeightActual"), Q_INT64_C(384));
    features.set("Width", 128);
    QCOMPARE(features.integer("Frame_Width"), Q_INT64_C(1024));
    features.choose("Frame_DecimationMode", "Average");
    QCOMPARE(features.integer("Frame_WidthActual"), Q_INT64_C(512));
    QCOMPARE(features.integer("PayloadSize"), Q_INT64_C(512 * 1536));

    GError *error = nullptr;
    QCOMPARE(arv_gc_integer_get_max(ARV_GC_INTEGER(features.node("Frame_OffsetX")), &error),
             gint64(4096 - 1024));
    QVERIFY(!error);
}

void TestSimulatedCamera::accessFollowsOtherFeatures()
{
    const SimulatedCamera camera;
    Features features(camera);
    const auto isAvailable12Bit = [&features] {
        guint count = 0;
        const char **names = arv_gc_enumeration_dup_available_string_values(
            ARV_GC_ENUMERATION(features.node("PixelFormat")), &count, nullptr);
        const bool found = std::find_if(names, names + count, [](const char *name) {
                               return qstrcmp(name, "BayerRG12") == 0;
                           }) != names + count;
        g_free(names);
        return found;
    };
    for (const bool isChanged : {false, true}) {
        if (isChanged) {
            features.choose("TriggerMode", "On");
            features.choose("TriggerSource", "Software");
            features.choose("FrameMode", "DualVideo");
            features.choose("Frame_ExposureControl", "Trigger");
            features.turn("PulseGenEnable", true);
            features.choose("SensorADCBitDepth", "Bit12");
        }
        QCOMPARE(features.isAvailable("TriggerSoftware"), isChanged);
        QCOMPARE(features.isAvailable("NumberOfFrameAs"), isChanged);
        QCOMPARE(features.isLocked("Frame_ExposureLines"), isChanged);
        QCOMPARE(features.isLocked("PulseGenMode"), isChanged);
        QCOMPARE(isAvailable12Bit(), isChanged);
    }

    GError *error = nullptr;
    QVERIFY(!arv_gc_feature_node_is_implemented(ARV_GC_FEATURE_NODE(features.node("CoolerEnable")),
                                                &error));
    QVERIFY(!error);
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

void TestSimulatedCamera::whiteBalance_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QByteArray>("speed");
    QTest::addColumn<bool>("moves");
    QTest::addColumn<bool>("arrivesInThreeSeconds");
    const QByteArray once("Once");
    const QByteArray fast("Fast");
    QTest::newRow("off") << QByteArray("Off") << fast << false << false;
    QTest::newRow("continuous") << QByteArray("Continuous") << fast << true << false;
    QTest::newRow("once, fast") << once << fast << true << true;
    QTest::newRow("once, slow") << once << QByteArray("Slow") << true << false;
}

void TestSimulatedCamera::whiteBalance()
{
    QFETCH(QByteArray, mode);
    QFETCH(bool, moves);
    QFETCH(bool, arrivesInThreeSeconds);
    QFETCH(QByteArray, speed);
    SimulatedCamera camera;
    Features features(camera);
    const qint64 red = features.integer("RedCoefficient");
    features.choose("AutoTrackingSpeed", speed);
    features.choose("BalanceWhiteAuto", mode);
    for (int i = 0; i < 15; ++i)
        camera.advance(0.2);
    QCOMPARE(features.integer("RedCoefficient") != red, moves);
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

void TestSimulatedCamera::pulseGenerator_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QByteArray>("grid");
    QTest::addColumn<int>("period");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<int>("pulses");
    QTest::addColumn<bool>("runs");
    const QByteArray burst("Burst");
    const QByteArray endless("Continuous");
    const QByteArray fine("Us1");
    QTest::newRow("burst, before its end") << burst << fine << 10000 << 0.095 << 9 << true;
    QTest::newRow("burst, at its end") << burst << fine << 10000 << 0.1 << 10 << false;
    QTest::newRow("coarse") << burst << QByteArray("Ms1") << 1500 << 0.016 << 8 << true;
    QTest::newRow("continuous") << endless << fine << 10000 << 60.0 << 6000 << true;
    QTest::newRow("period of 0") << endless << fine << 0 << 0.001 << 1000 << true;
}

void TestSimulatedCamera::pulseGenerator()
{
    QFETCH(QByteArray, mode);
    QFETCH(QByteArray, grid);
    QFETCH(int, period);
    QFETCH(double, seconds);
    SimulatedCamera camera;
    Features features(camera);
    features.choose("TriggerMode", "On");
    features.choose("TriggerSource", "PulseGenerator");
    features.choose("PulseGenMode", mode);
    features.choose("PulseGenGranularity", grid);
    arv_device_write_register(camera.device(), Registers::PulseGenPeriod, quint32(period), nullptr);
    features.turn("PulseGenEnable", true);
    camera.advance(seconds / 2);
    camera.advance(seconds / 2);
    QTEST(int(features.integer("PulseGenPulseCount")), "pulses");
    QTEST(int(features.integer("TriggerCount")), "pulses");
    QTEST(features.boolean("PulseGenEnable"), "runs");

    features.turn("PulseGenEnable", false);
    camera.advance(1);
    features.turn("PulseGenEnable", true);
    camera.advance(0);
    QCOMPARE(features.integer("PulseGenPulseCount"), Q_INT64_C(0));
}

void TestSimulatedCamera::commandsEndByThemselves()
{
    SimulatedCamera camera;
    Features features(camera);
    features.choose("TriggerMode", "On");
    features.choose("TriggerSource", "Software");
    features.execute("TriggerSoftware");
    QCOMPARE(features.memory(Registers::TriggerSoftware), 1U);
    camera.advance(0);
    QCOMPARE(features.memory(Registers::TriggerSoftware), 0U);
    QCOMPARE(features.integer("TriggerCount"), Q_INT64_C(1));

    camera.advance(5);
    features.execute("TimestampLatch");
    camera.advance(2.5);
    QCOMPARE(features.integer("TimestampLatchValue"), Q_INT64_C(7500000000));
    camera.advance(-3);
    camera.advance(qQNaN());
    QCOMPARE(features.integer("UpTime"), Q_INT64_C(7));
    QCOMPARE(features.integer("TriggerCount"), Q_INT64_C(1));
}

void TestSimulatedCamera::userSets()
{
    SimulatedCamera camera;
    Features features(camera);
    features.set("Frame_ExposureLines", 55);
    features.choose("PixelFormat", "Mono8");
    features.set("LUTIndex", 100);
    features.set("LUTValue", 7);
    features.choose("UserSetSelector", "UserSet2");
    features.execute("UserSetSave");
    camera.advance(0);

    features.choose("UserSetSelector", "Default");
    QVERIFY(features.isLocked("UserSetSave"));
    arv_device_write_register(camera.device(), Registers::UserSetSave, 1, nullptr); // not a chance
    camera.advance(0);
    features.execute("UserSetLoad");
    camera.advance(0);
    QCOMPARE(features.integer("Frame_ExposureLines"), Q_INT64_C(1600));
    QCOMPARE(features.text("PixelFormat"), QString("BayerRG8"));
    QCOMPARE(features.integer("LUTValue"), Q_INT64_C(1605));
    QCOMPARE(features.text("UserSetSelector"), QString("Default"));

    features.choose("UserSetSelector", "UserSet2");
    features.execute("UserSetLoad");
    camera.advance(0);
    QCOMPARE(features.integer("Frame_ExposureLines"), Q_INT64_C(55));
    QCOMPARE(features.text("PixelFormat"), QString("Mono8"));
    QCOMPARE(features.integer("LUTValue"), Q_INT64_C(7));
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

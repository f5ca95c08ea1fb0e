// SPDX-License-Identifier: MIT
#include "camconfigtestsupport.h"

#include <memorynodemap.h>
#include <orvcamconfigframeabdialog.h>
#include <qtorvdoublespinboxval.h>
#include <qtorvgainslider.h>
#include <qtorvslider.h>
#include <qtorvsliderspinbox.h>
#include <qtorvspinbox.h>
#include <qtorvspinboxval.h>

#include <cmath>
#include <random>

using namespace OrvGui;
using OrvSimulation::SimulatedCamera;

namespace {

using Names = QList<const char *>;
using Area = QVector<qint64>;

/// A simulated camera and access to it from outside the dialog.
class Camera : public SimulatedDevice
{
public:
    OrvGenParam::Int *number(const QByteArray &name) { return device.array->GetInt(name); }
    OrvGenParam::Enum *choice(const QByteArray &name) { return device.array->GetEnum(name); }
    OrvGenParam::Boolean *flag(const QByteArray &name) { return device.array->GetBoolean(name); }

    qint64 value(const QByteArray &name) { return number(name)->GetValue(); }
    QString symbol(const QByteArray &name) { return choice(name)->GetSymbolicValue(); }
    bool set(const QByteArray &name, qint64 value) { return number(name)->SetValue(value) == 0; }
    bool choose(const QByteArray &name, const char *symbol)
    {
        return choice(name)->SetSymbolicValue(symbol) == 0;
    }
    bool turn(const QByteArray &name, bool on) { return flag(name)->SetValue(on) == 0; }
    int writes() const { return int(SimulatedDevice::writes()); }
};

/// A camera with few features, which can refuse writes.
struct PlainCamera
{
    PlainCamera()
    {
        for (auto *node : {&lines, &clocks, &map.addInteger("Frame_LineTime", 1000)})
            node->setLimits(0, 100000);
        map.addInteger("Frame_FixedFramePeriodValue", 40);
        fine.setLimits(5, 63);
        device = std::make_unique<NodeMapDevice>(map);
    }

    OrvGenApi::MemoryNodeMap map;
    OrvGenApi::MemoryInteger &lines = map.addInteger("Frame_ExposureLines", 10);
    OrvGenApi::MemoryInteger &clocks = map.addInteger("Frame_ExposureClocks", 20);
    OrvGenApi::MemoryInteger &fine = map.addInteger("Frame_DigitalFineGain", 16);
    OrvGenApi::MemoryBoolean &hasPeriod = map.addBoolean("Frame_FixedFramePeriodEnable");
    OrvGenApi::MemoryEnumeration &mode =
        map.addEnumeration("FrameMode", {{"FrameA", 0}, {"FrameB", 1}, {"DualVideo", 2}});
    OrvGenApi::MemoryEnumeration &selector =
        map.addEnumeration("FrameAB_Selector", {{"FrameA", 0}, {"FrameB", 1}});
    std::unique_ptr<NodeMapDevice> device;
};

/// The frame A/B dialog and the actions of its user.
class Dialog : public OrvCamConfigFrameABDialog
{
public:
    explicit Dialog(OrvCam::Device *device) : OrvCamConfigFrameABDialog(device) { open(); }

    template<class T = QWidget>
    T *get(const char *name) const
    {
        return part<T>(*this, name);
    }
    bool isOn(const char *name) const { return get(name)->isEnabled(); }
    bool isChecked(const char *name) const { return get<QRadioButton>(name)->isChecked(); }
    int longestTime() const { return get("spBoxExpTime")->property("maximum").toInt(); }
    int shown(const char *name) const { return get(name)->property("value").toInt(); }
    /// The value of the widget, or the text of the checked button of a group.
    QString text(const Names &widgets) const
    {
        for (const char *name : widgets) {
            const auto *button = qobject_cast<QRadioButton *>(get(name));
            const QVariant shown = get(name)->metaObject()->userProperty().read(get(name));
            if (!button)
                return shown.userType() == QMetaType::Bool ? QString::number(shown.toInt())
                                                           : shown.toString();
            if (button->isChecked())
                return button->text();
        }
        return QString();
    }
    double gain() const { return get<QtOrvGainSlider>("spBoxDigitalGain")->value(); }
    QAbstractSpinBox *editor(const char *name) const
    {
        return get(name)->findChild<QAbstractSpinBox *>();
    }
    QTabWidget *tabs() const { return get<QTabWidget>("tabFrames"); }

    void type(const char *name, const QString &text, bool enter = true)
    {
        ::type(get(name), text, enter);
    }
    void type(const char *name, int number) { type(name, QString::number(number)); }
    void click(const char *name) { ::click(get(name)); }
    void clickTab(int index)
    {
        QTest::mouseClick(tabs()->tabBar(), Qt::LeftButton, Qt::NoModifier,
                          tabs()->tabBar()->tabRect(index).center());
        processEvents();
    }
    void pick(const char *name, const QString &text)
    {
        auto *comboBox = get<QComboBox>(name);
        comboBox->setFocus();
        const int index = comboBox->findText(text);
        for (int i = 0; i < comboBox->count() && comboBox->currentIndex() != index; ++i)
            QTest::keyClick(comboBox, comboBox->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
        processEvents();
    }
    void drag(const char *name, double part)
    {
        auto *slider = get(name)->findChild<QSlider *>();
        const QPoint to(int(slider->width() * part), slider->height() / 2);
        dragBy(slider, handleOf(slider), to - handleOf(slider), 1);
        QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, to);
        processEvents();
    }
    static void processEvents()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }

    /// The differences between the dialog and the camera; empty if there are none.
    QStringList differences(Camera &camera);

    void wantsCustom(const Area &area) { m_customArea = area; }

private:
    void open()
    {
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("The dialog does not come up");
    }

    Area m_customArea;
};

struct Binding
{
    const char *feature;
    Names widgets; ///< one widget, or the buttons of a group

    bool isOf(const QByteArray &widget) const
    {
        return std::find(widgets.begin(), widgets.end(), widget) != widgets.end();
    }
};

/// The controls that the mapper binds without conversion.
const Binding bindings[] = {
    {"FrameMode", {"cmBoxFrameMode"}},
    {"Frame_SubsamplingM", {"cmBoxSubsamplingM"}},
    {"Frame_SubsamplingP", {"cmBoxSubsamplingP"}},
    {"Frame_Averaging", {"cmBoxAveraging"}},
    {"Frame_WdrP1", {"cmBoxWdrP1"}},
    {"Frame_WdrP2", {"cmBoxWdrP2"}},
    {"Frame_WdrP3", {"cmBoxWdrP3"}},
    {"Frame_ExposureLines", {"spBoxExpLines"}},
    {"Frame_ExposureClocks", {"spBoxExpClocks"}},
    {"Frame_OffsetX", {"spBoxFrameOffsetX"}},
    {"Frame_OffsetY", {"spBoxFrameOffsetY"}},
    {"Frame_Width", {"spBoxFrameWidth"}},
    {"Frame_Height", {"spBoxFrameHeight"}},
    {"Frame_WdrE1", {"spBoxWdrE1"}},
    {"Frame_WdrE2", {"spBoxWdrE2"}},
    {"Frame_WdrE3", {"spBoxWdrE3"}},
    {"Frame_BlackLevel", {"spBoxBlackLevel"}},
    {"Frame_FixedFramePeriodEnable", {"chBoxFixedFramePeriodEnable"}},
    {"Frame_WdrEnable", {"chBoxWdrEnable"}},
    {"ShutterMode", {"radioBtnRollingShutter", "radioBtnGlobalShutter"}},
    {"SensorADCBitDepth", {"radioBtnAdcSelector10b", "radioBtnAdcSelector12b"}},
    {"Frame_ExposureControl", {"radioBtnExpOff", "radioBtnExpTrigger", "radioBtnExpInternal"}},
    {"Frame_DecimationMode",
     {"radioBtnSubsampleOff", "radioBtnSubsampleSubsampling", "radioBtnSubsampleAverage"}},
    {"Frame_AnalogGain",
     {"radioBtnAGain1x", "radioBtnAGain2x", "radioBtnAGain4x", "radioBtnAGain8x"}}};

/// The bindings to one kind of widget.
QList<Binding> bindingsOf(const char *prefix)
{
    QList<Binding> found;
    for (const Binding &b : bindings) {
        if (QByteArray(b.widgets.first()).startsWith(prefix))
            found << b;
    }
    return found;
}

const Names presetButtons = {"radioBtnFullFrame", "radioBtnQFHDFrame", "radioBtnCustomFrame"};

Area areaOf(Camera &camera)
{
    return {camera.value("Frame_OffsetX"), camera.value("Frame_OffsetY"),
            camera.value("Frame_Width"), camera.value("Frame_Height")};
}

/// The index of the button that matches the area of the 4096 by 3072 sensor.
int presetOf(Camera &camera)
{
    const Area area = areaOf(camera);
    return area == Area{0, 0, 4096, 3072} ? 0 : area == Area{128, 456, 3840, 2160} ? 1 : 2;
}

QStringList Dialog::differences(Camera &camera)
{
    QStringList all;
    const auto expect = [&](const char *what, const QVariant &here, const QVariant &there) {
        if (here != there)
            all << QString("%1 shows %2, not %3").arg(what, here.toString(), there.toString());
    };
    const auto isUsable = [&](const char *feature) {
        const auto *param = camera.device.array->GetParam(feature);
        return param->IsAvailable() && param->IsWritable();
    };

    for (const Binding &b : bindings) {
        for (const char *name : b.widgets)
            expect(name, isOn(name), isUsable(b.feature));
        if (camera.device.array->GetParam(b.feature)->IsReadable())
            expect(b.widgets.first(), text(b.widgets), camera.get(b.feature));
    }

    const QString mode = camera.symbol("FrameMode");
    const bool isDual = mode == "DualVideo";
    const int frame = int(camera.choice("FrameAB_Selector")->GetIntValue());
    expect("tabFrames", tabs()->currentIndex(), frame);
    expect("tab of frame A", tabs()->isTabEnabled(0), mode != "FrameB");
    expect("tab of frame B", tabs()->isTabEnabled(1), mode != "FrameA");
    expect("page", tabs()->currentWidget()->isAncestorOf(get("grBoxWDR")), true);
    expect("page", get("grBoxWDR")->isVisible(), true);
    expect("spBoxNumberOfFrameAs", isOn("spBoxNumberOfFrameAs"), isDual);
    expect("spBoxNumberOfFrameBs", isOn("spBoxNumberOfFrameBs"), isDual);
    if (isDual) {
        expect("spBoxNumberOfFrameAs", shown("spBoxNumberOfFrameAs"),
               camera.value("NumberOfFrameAs"));
        expect("spBoxNumberOfFrameBs", shown("spBoxNumberOfFrameBs"),
               camera.value("NumberOfFrameBs"));
    }
    const qint64 lineTime = camera.value("Frame_LineTime");
    expect("spBoxDualVideo", isOn("spBoxDualVideo"), isDual);
    expect("spBoxFrameLineTime", isOn("spBoxFrameLineTime"), !isDual);
    expect("line time", shown(isDual ? "spBoxDualVideo" : "spBoxFrameLineTime"), lineTime);

    const qint64 clock = camera.value("PixelClock");
    const bool isFixed = camera.flag("Frame_FixedFramePeriodEnable")->GetValue();
    const auto inMicroseconds = [&](qint64 lines) {
        return clock ? qint64(double(lines * lineTime) / double(clock) + 0.5) : 0;
    };
    expect("spBoxFixedFramePeriodValue", isOn("spBoxFixedFramePeriodValue"), isFixed);
    if (isFixed)
        expect("spBoxFixedFramePeriodValue", shown("spBoxFixedFramePeriodValue"),
               inMicroseconds(camera.value("Frame_FixedFramePeriodValue")));
    expect("spBoxExpTime", isOn("spBoxExpTime"), isUsable("Frame_ExposureLines"));
    if (isOn("spBoxExpTime")) {
        const qint64 clocks =
            camera.value("Frame_ExposureLines") * lineTime + camera.value("Frame_ExposureClocks");
        expect("spBoxExpTime", shown("spBoxExpTime"), clock ? clocks / clock : 0);
        const qint64 most = camera.number("Frame_ExposureLines")->GetMax() * lineTime +
                            camera.number("Frame_ExposureClocks")->GetMax();
        expect("end of spBoxExpTime", get("spBoxExpTime")->property("maximum").toLongLong(),
               isFixed ? inMicroseconds(camera.value("Frame_FixedFramePeriodValue"))
                       : qMin<qint64>(clock ? most / clock : 0, 2147483647));
    }

    const double factor = std::ldexp(1 + double(camera.value("Frame_DigitalFineGain")) / 64,
                                     int(camera.value("Frame_DigitalCourseGain")));
    if (std::abs(gain() - factor) > 0.125)
        all << QString("The gain is %1, not %2").arg(gain()).arg(factor);

    // Custom may stay checked if the user has chosen it for exactly this area.
    if (areaOf(camera) != m_customArea)
        m_customArea = {};
    const char *const preset = presetButtons[presetOf(camera)];
    if (m_customArea.isEmpty() || !isChecked("radioBtnCustomFrame"))
        expect(preset, isChecked(preset), true);
    return all;
}

const auto none = QStringList();

#define VERIFY_SAME(dialog, camera)                                                                \
    do {                                                                                           \
        const QStringList differences = (dialog).differences(camera);                              \
        QVERIFY2(differences.isEmpty(), qPrintable(differences.join("; ")));                       \
    } while (false)

} // namespace

Q_DECLARE_METATYPE(Names)

class TestFrameABDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void withoutACamera();
    void afterACameraWithOneFrame();
    void formerCameraIsReleased();
    void exposureTimeIsSplit();
    void exposureTimeOfUnusualCameras_data();
    void exposureTimeOfUnusualCameras();
    void fixedPeriodIsConverted();
    void gainIsSplit();
    void draggingWritesOnceAtTheEnd();
    void frameChangeDiscardsTyping();
    void otherProgramSelectsTheOtherFrame();
    void hiddenDialogKeepsSelection();
    void wheelOverDerivedValues();
    void scrollsOnASmallScreen();
    void areaPresets();
    void areaPresetsOfOtherSensors();
    void missingFeatures_data();
    void missingFeatures();
    void refusedWrites();
    void otherCameraDuringWrite();
    void otherCameraWhileAFrameIsRefused();
    void currentSizeIsRefreshed();
    void randomWalk();
};

void TestFrameABDialog::initTestCase()
{
    QApplication::setStyle("fusion");
}

void TestFrameABDialog::withoutACamera()
{
    Camera camera;
    Dialog dialog(nullptr);
    QVERIFY(!dialog.isEnabled());
    dialog.SetDevice(&camera.device);
    QVERIFY(dialog.isEnabled());
    Dialog::processEvents();
    VERIFY_SAME(dialog, camera);
    QCOMPARE(camera.writes(), 0);

    camera.device.error = 5;
    dialog.SetDevice(&camera.device);
    QVERIFY(!dialog.isEnabled());
    QCOMPARE(dialog.get<QLineEdit>("lineEditFrameCurrentSize")->text(), QString());

    camera.device.error = OrvCam::Success;
    for (int i = 0; i < 2; ++i) // a second call must not bind anything twice
        dialog.SetDevice(&camera.device);
    Dialog::processEvents();
    VERIFY_SAME(dialog, camera);
    const int writes = camera.writes();
    dialog.type("spBoxBlackLevel", 100);
    QCOMPARE(camera.writes(), writes + 1);
}

void TestFrameABDialog::afterACameraWithOneFrame()
{
    OrvGenApi::MemoryNodeMap map;
    map.addEnumeration("FrameAB_Selector", {{"Only", 0}});
    NodeMapDevice single(map);
    Camera camera;
    camera.choose("FrameMode", "DualVideo");
    Dialog dialog(&camera.device);
    dialog.clickTab(1); // the form moves to that tab
    for (int i = 0; i < 2; ++i) {
        dialog.SetDevice(&single);
        Dialog::processEvents();
        QCOMPARE(dialog.tabs()->count(), 1);
        QVERIFY(dialog.get("grBoxWDR")->isVisible());
        dialog.SetDevice(&camera.device);
        Dialog::processEvents();
        QCOMPARE(dialog.tabs()->tabText(1), QString("FrameB"));
        VERIFY_SAME(dialog, camera);
    }
}

void TestFrameABDialog::formerCameraIsReleased()
{
    // The output mode unbinds the last feature, too.
    for (const char *feature :
         {"Frame_ExposureLines", "Frame_DigitalFineGain", "SensorWidth", "NumberOfFrameAs"}) {
        CountedInt number(feature);
        Camera camera;
        camera.choose("FrameMode", "DualVideo");
        camera.device.part.counted = &number;
        PlainCamera next;
        Dialog dialog(&camera.device);
        QVERIFY2(!number.sinks.isEmpty(), feature);
        camera.choose("FrameMode", "FrameA");
        dialog.SetDevice(next.device.get());
        QVERIFY2(number.sinks.isEmpty(), feature);
    }
}

void TestFrameABDialog::exposureTimeIsSplit()
{
    Camera camera;
    Dialog dialog(&camera.device);
    QCOMPARE(dialog.shown("spBoxExpTime"), 10000);
    int writes = camera.writes();
    dialog.type("spBoxExpTime", 10);
    QCOMPARE(camera.value("Frame_ExposureLines"), Q_INT64_C(1));
    QCOMPARE(camera.value("Frame_ExposureClocks"), Q_INT64_C(600));
    QCOMPARE(camera.writes(), writes + 2);
    VERIFY_SAME(dialog, camera);

    // Typing alone writes nothing.
    writes = camera.writes();
    dialog.type("spBoxExpTime", "777", false);
    QCOMPARE(camera.writes(), writes);
    QTest::keyClick(dialog.editor("spBoxExpTime"), Qt::Key_Return);

    // Showing a time that exceeds the period must not shorten it. The longest time of a period
    // needs more lines than the camera allows.
    camera.set("Frame_ExposureLines", 5000);
    camera.turn("Frame_FixedFramePeriodEnable", true);
    camera.set("Frame_FixedFramePeriodValue", 100);
    VERIFY_SAME(dialog, camera);
    camera.turn("Frame_FixedFramePeriodEnable", false);
    QCOMPARE(camera.value("Frame_ExposureLines"), Q_INT64_C(5000));
    camera.turn("Frame_FixedFramePeriodEnable", true);
    const int longest = dialog.longestTime();
    for (int i = 0; i < 2; ++i) {
        dialog.type("spBoxExpTime", longest);
        VERIFY_SAME(dialog, camera);
    }
}

void TestFrameABDialog::exposureTimeOfUnusualCameras_data()
{
    QTest::addColumn<qint64>("clock");
    QTest::addColumn<qint64>("lineTime");
    QTest::addColumn<int>("time");
    QTest::addColumn<qint64>("lines");
    QTest::addColumn<qint64>("clocks");
    QTest::addColumn<int>("period");

    QTest::newRow("no line time") << 160LL << 0LL << 3 << 0LL << 480LL << 0;
    QTest::newRow("no pixel clock") << 0LL << 1000LL << 3 << 20LL << 30LL << 0;
    QTest::newRow("unknown clock") << -1LL << 1000LL << 10 << 1LL << 600LL << 25000;
    QTest::newRow("slow clock") << 1LL << 1000LL << 2500 << 2LL << 500LL << 2147483647;
    QTest::newRow("negative line time") << 160LL << -1LL << 0 << 20LL << 30LL << 0;
}

void TestFrameABDialog::exposureTimeOfUnusualCameras()
{
    QFETCH(qint64, clock);
    QFETCH(qint64, lineTime);
    QFETCH(int, time);
    QFETCH(qint64, lines);
    QFETCH(qint64, clocks);
    QFETCH(int, period);

    const qint64 most = std::numeric_limits<qint64>::max();
    OrvGenApi::MemoryNodeMap map;
    map.addEnumeration("FrameAB_Selector", {{"FrameA", 0}, {"FrameB", 1}});
    if (clock >= 0)
        map.addInteger("PixelClock", clock);
    map.addInteger("Frame_LineTime", lineTime);
    auto &linesNode = map.addInteger("Frame_ExposureLines", 20);
    linesNode.setLimits(0, clock == 1 ? 1000000 : most);
    auto &clocksNode = map.addInteger("Frame_ExposureClocks", 30);
    clocksNode.setLimits(0, 1999);
    map.addInteger("Frame_FixedFramePeriodValue", clock == 1 ? 4000000 : 4000).setLimits(0, most);
    NodeMapDevice device(map);
    Dialog dialog(&device);
    QCOMPARE(dialog.shown("spBoxFixedFramePeriodValue"), period);
    dialog.type("spBoxExpTime", time);
    QCOMPARE(qint64(linesNode.GetValue()), lines);
    QCOMPARE(qint64(clocksNode.GetValue()), clocks);
}

void TestFrameABDialog::fixedPeriodIsConverted()
{
    Camera camera;
    Dialog dialog(&camera.device);
    const char *const box = "spBoxFixedFramePeriodValue";
    QVERIFY(!dialog.isOn(box));
    dialog.click("chBoxFixedFramePeriodEnable");
    QVERIFY(dialog.isOn(box));
    QCOMPARE(dialog.shown(box), 25000);
    QCOMPARE(dialog.longestTime(), 25000);

    camera.set("Frame_FixedFramePeriodValue", 1601);
    QCOMPARE(dialog.shown(box), 10006);
    QCOMPARE(dialog.longestTime(), 10006);

    // Each key press changes the number of lines by one.
    QVector<qint64> lines;
    for (const Qt::Key key :
         {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down}) {
        QTest::keyClick(dialog.editor(box), key);
        lines << camera.value("Frame_FixedFramePeriodValue");
    }
    QCOMPARE(lines, (QVector<qint64>{1602, 1603, 1604, 1603, 1602, 1601}));
}

void TestFrameABDialog::gainIsSplit()
{
    const QByteArray coarse = "Frame_DigitalCourseGain";
    const QByteArray fine = "Frame_DigitalFineGain";
    Camera camera;
    Dialog dialog(&camera.device);
    const QWidget *const slider = dialog.get("spBoxDigitalGain");
    const auto parts = [&] { return qMakePair(camera.value(coarse), camera.value(fine)); };
    const auto ends = [&] {
        return qMakePair(slider->property("minimum").toDouble(),
                         slider->property("maximum").toDouble());
    };
    QCOMPARE(ends(), qMakePair(1.0, 31.75));
    dialog.type("spBoxDigitalGain", QStringLiteral("3.0"));
    QCOMPARE(parts(), qMakePair(Q_INT64_C(1), Q_INT64_C(32)));
    const int writes = camera.writes();
    camera.set(coarse, 2);
    camera.set(fine, 17);
    QCOMPARE(dialog.gain(), 5.125); // 5.0625, rounded to the grid of the box
    QCOMPARE(parts(), qMakePair(Q_INT64_C(2), Q_INT64_C(17)));
    QCOMPARE(camera.writes(), writes + 2);

    // The arrow keys work although the camera has no half steps.
    dialog.type("spBoxDigitalGain", QStringLiteral("20"));
    for (int i = 0; i < 8; ++i)
        QTest::keyClick(dialog.editor("spBoxDigitalGain"), Qt::Key_Up);
    QCOMPARE(dialog.gain(), 21.0);
    QCOMPARE(parts(), qMakePair(Q_INT64_C(4), Q_INT64_C(20)));

    // The missing part counts as 0.
    camera.device.part.missing = {coarse};
    dialog.SetDevice(&camera.device);
    QCOMPARE(ends(), qMakePair(1.0, 1.984375));
    dialog.type("spBoxDigitalGain", QStringLiteral("1.5"));
    QCOMPARE(parts(), qMakePair(Q_INT64_C(4), Q_INT64_C(32)));
    camera.device.part.missing = {fine};
    dialog.SetDevice(&camera.device);
    QCOMPARE(ends(), qMakePair(1.0, 16.0));
    dialog.type("spBoxDigitalGain", QStringLiteral("8"));
    QCOMPARE(parts(), qMakePair(Q_INT64_C(3), Q_INT64_C(32)));
    camera.device.part.missing = {coarse, fine};
    dialog.SetDevice(&camera.device);
    QVERIFY(!slider->isEnabled());

    // The box rounds its limits; the camera gets the exact ones.
    PlainCamera plain;
    dialog.SetDevice(plain.device.get());
    dialog.type("spBoxDigitalGain", QStringLiteral("1.984"));
    QCOMPARE(int(plain.fine.GetValue()), 63);
    dialog.type("spBoxDigitalGain", QStringLiteral("1.078"));
    QCOMPARE(int(plain.fine.GetValue()), 5);

    // Registers with very large limits.
    OrvGenApi::MemoryNodeMap map;
    map.addEnumeration("FrameAB_Selector", {{"FrameA", 0}, {"FrameB", 1}});
    auto &wide = map.addInteger(coarse.toStdString(), 2);
    NodeMapDevice device(map);
    for (const qint64 most : {Q_INT64_C(2147483647), Q_INT64_C(4294967295)}) {
        wide.setLimits(0, most);
        dialog.SetDevice(&device);
        QVERIFY(ends().second > 1e6);
        QCOMPARE(dialog.gain(), 4.0);
        dialog.type("spBoxDigitalGain", QStringLiteral("16"));
        QCOMPARE(int(wide.GetValue()), 4);
        wide.change(2);
    }
}

void TestFrameABDialog::draggingWritesOnceAtTheEnd()
{
    Camera camera;
    camera.turn("Frame_FixedFramePeriodEnable", true);
    Dialog dialog(&camera.device);
    // The slider of the exposure time is a separate window.
    const int writes = camera.writes();
    auto *box = dialog.get<QtOrvSpinBox>("spBoxExpTime");
    box->toolButton()->click();
    QVERIFY(QTest::qWaitForWindowExposed(box->slider()));
    auto *slider = box->slider()->findChild<QSlider *>();
    const QPoint to(slider->width() / 2, slider->height() / 5);
    dragBy(slider, handleOf(slider), to - handleOf(slider), 1);
    QCOMPARE(camera.writes(), writes);
    camera.set("Frame_ExposureLines", 5); // must not move the handle
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, to);
    QVERIFY(camera.value("Frame_ExposureLines") != 5);
    QVERIFY(camera.writes() <= writes + 3);
    box->slider()->hide();
    Dialog::processEvents();
    VERIFY_SAME(dialog, camera);

    // Releasing a handle without moving it writes nothing, even if the box shows a rounded value.
    PlainCamera plain;
    plain.hasPeriod.change(true);
    plain.lines.change(500);
    plain.fine.change(6);
    dialog.SetDevice(plain.device.get());
    QCOMPARE(dialog.shown("spBoxExpTime"), 250);
    QCOMPARE(dialog.gain(), 1.078);
    box->toolButton()->click();
    QVERIFY(QTest::qWaitForWindowExposed(box->slider()));
    for (auto *held : {slider, dialog.get("spBoxDigitalGain")->findChild<QSlider *>()}) {
        dragBy(held, handleOf(held), QPoint(), 0);
        QTest::mouseRelease(held, Qt::LeftButton, Qt::NoModifier, handleOf(held));
    }
    QCOMPARE(plain.lines.writes() + plain.clocks.writes() + plain.fine.writes(), 0);
    box->slider()->hide();
}

void TestFrameABDialog::frameChangeDiscardsTyping()
{
    Camera camera;
    camera.choose("FrameMode", "DualVideo");
    Dialog dialog(&camera.device);
    const auto levels = [&] {
        const QString selected = camera.symbol("FrameAB_Selector");
        QVector<qint64> both;
        for (const char *frame : {"FrameA", "FrameB"}) {
            camera.choose("FrameAB_Selector", frame);
            both << camera.value("Frame_BlackLevel");
        }
        camera.choose("FrameAB_Selector", selected.toLatin1());
        Dialog::processEvents();
        return both;
    };

    // A number that is not committed reaches neither frame when the user selects the other tab ...
    dialog.type("spBoxBlackLevel", "200", false);
    dialog.clickTab(1);
    QCOMPARE(dialog.shown("spBoxBlackLevel"), 80);
    QCOMPARE(levels(), (QVector<qint64>{64, 80}));

    // ... or when another program does.
    dialog.type("spBoxBlackLevel", "300", false);
    camera.choose("FrameAB_Selector", "FrameA");
    Dialog::processEvents();
    VERIFY_SAME(dialog, camera);
    QCOMPARE(levels(), (QVector<qint64>{64, 80}));

    // The same holds for a dragged value.
    auto *slider = dialog.get("spBoxBlackLevel")->findChild<QSlider *>();
    const QPoint to(slider->width() / 2, slider->height() / 2);
    dragBy(slider, handleOf(slider), to - handleOf(slider), 1);
    QVERIFY(dialog.shown("spBoxBlackLevel") > 400);
    camera.choose("FrameAB_Selector", "FrameB");
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, to);
    Dialog::processEvents();
    QCOMPARE(levels(), (QVector<qint64>{64, 80}));
    VERIFY_SAME(dialog, camera);
}

void TestFrameABDialog::otherProgramSelectsTheOtherFrame()
{
    Camera camera;
    Dialog dialog(&camera.device);
    const ErrorBoxes boxes;
    // The other program can read that frame; the dialog then restores the selection once.
    const int writes = camera.writes();
    camera.choose("FrameAB_Selector", "FrameB");
    QCOMPARE(camera.symbol("FrameAB_Selector"), QString("FrameB"));
    Dialog::processEvents();
    QCOMPARE(camera.symbol("FrameAB_Selector"), QString("FrameA"));
    QCOMPARE(camera.writes(), writes + 2);
    VERIFY_SAME(dialog, camera);

    // Two dialogs must not restore the selection in turns for ever.
    Dialog second(&camera.device);
    camera.choose("FrameMode", "FrameB");
    Dialog::processEvents();
    camera.choose("FrameAB_Selector", "FrameA");
    Dialog::processEvents();
    QVERIFY(camera.writes() <= writes + 2 + 6);
    VERIFY_SAME(dialog, camera);
    VERIFY_SAME(second, camera);
    QCOMPARE(boxes.texts, none);
}

void TestFrameABDialog::hiddenDialogKeepsSelection()
{
    Camera camera;
    Dialog dialog(&camera.device);
    dialog.close();
    const auto select = [&](const char *frame) {
        QVERIFY(camera.choose("FrameAB_Selector", frame));
        Dialog::processEvents();
        QCOMPARE(camera.symbol("FrameAB_Selector"), QString(frame));
    };
    select("FrameB");
    camera.set("Frame_ExposureLines", 321);
    camera.choose("FrameMode", "FrameB");
    select("FrameA");
    camera.choose("FrameMode", "FrameA");
    select("FrameB");
    int writes = camera.writes();
    dialog.SetDevice(&camera.device);
    OrvCamConfigFrameABDialog unseen(&camera.device);
    Dialog::processEvents();
    QCOMPARE(camera.writes(), writes);

    // When it is shown, it restores the selection.
    dialog.show();
    Dialog::processEvents();
    QCOMPARE(camera.symbol("FrameAB_Selector"), QString("FrameA"));
    QCOMPARE(camera.writes(), writes + 1);
    VERIFY_SAME(dialog, camera);
}

void TestFrameABDialog::wheelOverDerivedValues()
{
    Camera camera;
    Dialog dialog(&camera.device);
    dialog.get("cmBoxFrameMode")->setFocus();
    const int writes = camera.writes();
    for (const char *name : {"spBoxDigitalGain", "spBoxExpTime"}) {
        scroll(dialog.editor(name));
        scroll(dialog.get(name)->findChild<QSlider *>());
        QCOMPARE(camera.writes(), writes);
        QVERIFY(dialog.get(name)->toolTip().contains("Frame_"));
    }
    dialog.editor("spBoxExpTime")->setFocus();
    scroll(dialog.editor("spBoxExpTime"));
    QVERIFY(camera.writes() > writes);
}

void TestFrameABDialog::scrollsOnASmallScreen()
{
    Camera camera;
    Dialog dialog(&camera.device);
    const QSize screen = dialog.windowHandle()->screen()->availableSize();
    auto *area = dialog.get<QScrollArea>("scrollArea");
    QVERIFY(area->widget()->width() > screen.width()); // precondition of this test
    QVERIFY(dialog.width() <= screen.width() && dialog.height() <= screen.height());
    // Tab scrolls to the next widget.
    auto *last = qobject_cast<QWidget *>(dialog.editor("spBoxWdrE3"));
    dialog.click("chBoxWdrEnable");
    dialog.editor("spBoxWdrE2")->setFocus();
    for (int i = 0; i < 4 && dialog.focusWidget() != last; ++i)
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), last);
    QVERIFY(area->viewport()->rect().contains(last->mapTo(area->viewport(), QPoint())));
}

void TestFrameABDialog::areaPresets()
{
    Camera camera;
    Dialog dialog(&camera.device);
    const ErrorBoxes boxes;
    QVERIFY(dialog.isChecked("radioBtnFullFrame"));
    const QVector<QVector<int>> areas = {
        {0, 0, 4096, 3072}, {4032, 3056, 64, 16}, {256, 912, 3840, 2160}, {64, 1000, 4032, 2064}};
    for (const QVector<int> &area : areas) {
        for (const int preset : {0, 1}) {
            camera.set("Frame_OffsetX", 0);
            camera.set("Frame_OffsetY", 0);
            QVERIFY(camera.set("Frame_Width", area[2]) && camera.set("Frame_OffsetX", area[0]));
            QVERIFY(camera.set("Frame_Height", area[3]) && camera.set("Frame_OffsetY", area[1]));
            VERIFY_SAME(dialog, camera);
            const int before = presetOf(camera);
            const int writes = camera.writes();
            dialog.click(presetButtons[preset]);
            QCOMPARE(presetOf(camera), preset);
            VERIFY_SAME(dialog, camera);
            QVERIFY(camera.writes() <= writes + (before == preset ? 0 : 4));
        }
    }

    // Custom stays checked until the area changes. An area entered by hand may match a preset.
    int writes = camera.writes();
    dialog.click("radioBtnCustomFrame");
    QVERIFY(dialog.isChecked("radioBtnCustomFrame"));
    camera.set("Frame_OffsetX", 128);
    QVERIFY(dialog.isChecked("radioBtnCustomFrame"));
    QCOMPARE(camera.writes(), writes + 1);
    dialog.type("spBoxFrameOffsetX", 144);
    dialog.type("spBoxFrameOffsetX", 128);
    QVERIFY(dialog.isChecked("radioBtnQFHDFrame"));

    // The size is locked during acquisition.
    const GenApi::CIntegerPtr locked(camera.map->GetNode("TLParamsLocked"));
    locked->SetValue(1);
    QVERIFY(!dialog.isOn("radioBtnFullFrame") && !dialog.isOn("radioBtnQFHDFrame"));
    QVERIFY(dialog.isOn("radioBtnCustomFrame"));
    locked->SetValue(0);
    QVERIFY(dialog.isOn("radioBtnFullFrame") && dialog.isOn("radioBtnQFHDFrame"));
    QCOMPARE(boxes.texts, none);

    // A preset ends at the first write that is refused.
    PlainCamera plain;
    const auto add = [&](const char *name, int value, int end) -> OrvGenApi::MemoryInteger & {
        auto &node = plain.map.addInteger(name, value);
        node.setLimits(0, end);
        return node;
    };
    add("Frame_OffsetX", 500, 3096).onWrite(throwRefusal);
    const auto &width = add("Frame_Width", 1000, 3596);
    add("Frame_OffsetY", 0, 0);
    add("Frame_Height", 3072, 3072);
    add("SensorWidth", 4096, 4096);
    NodeMapDevice device(plain.map);
    dialog.SetDevice(&device);
    for (const int tries : {1, 2}) {
        dialog.click("radioBtnFullFrame");
        QCOMPARE(boxes.texts.size(), tries);
        QCOMPARE(width.writes(), 0);
        QVERIFY(dialog.isChecked("radioBtnCustomFrame"));
    }
}

void TestFrameABDialog::areaPresetsOfOtherSensors()
{
    const auto text = SimulatedCamera::description();
    const struct
    {
        int width;
        int height;
        Area fullFrame;
        Area qfhd;
    } sensors[] = {{2048, 1088, {0, 0, 2048, 1088}, {}},
                   {3840, 2160, {0, 0, 3840, 2160}, {0, 0, 3840, 2160}},
                   {5141, 4011, {0, 0, 5120, 4000}, {640, 924, 3840, 2160}}};
    for (const auto &sensor : sensors) {
        QByteArray xml(text->data(), int(text->size()));
        for (const char *tag : {"Value", "Min", "Max"}) {
            const QString format = QString("<%1>%2</%1>").arg(tag);
            xml.replace(format.arg(4096).toLatin1(), format.arg(sensor.width).toLatin1());
            xml.replace(format.arg(3072).toLatin1(), format.arg(sensor.height).toLatin1());
        }
        const auto map = OrvDescription::NodeMap::fromText(xml, std::size_t(xml.size()), "sensor");
        PartialDevice device(*map);
        const auto number = [&](const char *name) { return device.array->GetInt(name); };
        const auto area = [&] {
            return Area{number("Frame_OffsetX")->GetValue(), number("Frame_OffsetY")->GetValue(),
                        number("Frame_Width")->GetValue(), number("Frame_Height")->GetValue()};
        };
        Dialog dialog(nullptr);
        const ErrorBoxes boxes;
        for (const QSet<QByteArray> &missing :
             {QSet<QByteArray>(), QSet<QByteArray>{"SensorWidth", "SensorHeight"}}) {
            number("Frame_OffsetX")->SetValue(0);
            number("Frame_OffsetY")->SetValue(0);
            number("Frame_Width")->SetValue(64);
            number("Frame_Height")->SetValue(16);
            device.part.missing = missing;
            dialog.SetDevice(&device);
            QVERIFY(dialog.isOn(presetButtons[0]) && dialog.isChecked(presetButtons[2]));
            QCOMPARE(dialog.isOn(presetButtons[1]), !sensor.qfhd.isEmpty());
            for (int i = 0; i < 2; ++i) {
                if (!sensor.qfhd.isEmpty()) {
                    dialog.click(presetButtons[1]);
                    QCOMPARE(area(), sensor.qfhd);
                    QVERIFY(dialog.isChecked(presetButtons[1]));
                }
                dialog.click(presetButtons[0]);
                QCOMPARE(area(), sensor.fullFrame);
                QVERIFY(dialog.isChecked(presetButtons[0]));
            }
        }
        QCOMPARE(boxes.texts, none);
    }
}

void TestFrameABDialog::missingFeatures_data()
{
    QTest::addColumn<Names>("widgets");

    QTest::newRow("FrameAB_Selector") << Names{"tabFrames"};
    QTest::newRow("Frame_LineTime") << Names{"spBoxDualVideo", "spBoxFrameLineTime"};
    QTest::newRow("NumberOfFrameAs") << Names{"spBoxNumberOfFrameAs"};
    QTest::newRow("NumberOfFrameBs") << Names{"spBoxNumberOfFrameBs"};
    QTest::newRow("Frame_FixedFramePeriodValue") << Names{"spBoxFixedFramePeriodValue"};
    QTest::newRow("Frame_FixedFramePeriodEnable") << Names{"chBoxFixedFramePeriodEnable"};
    QTest::newRow("Frame_ExposureLines") << Names{"spBoxExpLines", "spBoxExpTime"};
    QTest::newRow("Frame_ExposureClocks") << Names{"spBoxExpClocks", "spBoxExpTime"};
    QTest::newRow("FrameMode") << Names{"cmBoxFrameMode"};
    QTest::newRow("Frame_Width") << Names{"spBoxFrameWidth", "radioBtnFullFrame"};
    for (const char *feature : {"PixelClock", "TriggerMode", "Frame_WidthActual",
                                "Frame_HeightActual", "SensorWidth", "SensorHeight"})
        QTest::newRow(feature) << Names();
}

void TestFrameABDialog::missingFeatures()
{
    QFETCH(Names, widgets);
    const QByteArray missing = QTest::currentDataTag();
    Camera camera;
    camera.choose("FrameMode", "FrameB");
    camera.choose("FrameAB_Selector", "FrameB");
    camera.turn("Frame_FixedFramePeriodEnable", true);
    Dialog dialog(&camera.device);
    dialog.SetDevice(nullptr);
    camera.choose("FrameMode", "DualVideo");
    camera.choose("FrameAB_Selector", "FrameA");
    camera.turn("Frame_FixedFramePeriodEnable", missing != "Frame_FixedFramePeriodEnable");
    camera.device.part.missing = {missing};
    dialog.SetDevice(&camera.device);
    const ErrorBoxes boxes;

    // Values from a camera with the feature must not replace the missing one.
    QVERIFY(dialog.tabs()->isTabEnabled(0));
    if (dialog.isOn("spBoxExpTime"))
        QCOMPARE(dialog.longestTime(), Dialog(&camera.device).longestTime());
    for (const char *widget : widgets)
        QVERIFY2(!dialog.isOn(widget), widget);
    if (missing != "FrameAB_Selector") {
        // The other controls still work.
        dialog.type("spBoxExpTime", 500);
        dialog.click("radioBtnQFHDFrame");
        dialog.clickTab(1);
        dialog.type("spBoxDigitalGain", QStringLiteral("4"));
        dialog.clickTab(0);
        dialog.click("radioBtnFullFrame");
    }
    camera.set("SensorClockDivider", 64);
    camera.choose("FrameAB_Selector", "FrameB");
    camera.choose("FrameMode", "FrameA");
    Dialog::processEvents();
    QCOMPARE(boxes.texts, none);
    if (widgets.isEmpty() && missing != "PixelClock")
        VERIFY_SAME(dialog, camera);

    // A complete camera restores all controls.
    camera.device.part.missing.clear();
    dialog.SetDevice(&camera.device);
    Dialog::processEvents();
    VERIFY_SAME(dialog, camera);
}

void TestFrameABDialog::refusedWrites()
{
    PlainCamera plain;
    NodeMapDevice &device = *plain.device;
    Dialog dialog(&device);
    ErrorBoxes boxes;

    // A refused write must not show up as the exposure time.
    plain.lines.onWrite(throwRefusal);
    dialog.type("spBoxExpTime", 1000);
    QCOMPARE(boxes.texts.size(), 1);
    QVERIFY(
        boxes.texts[0].startsWith("Error while setting the Frame_ExposureLines integer value!"));
    QCOMPARE(qint64(plain.lines.GetValue()), Q_INT64_C(10));
    QCOMPARE(dialog.shown("spBoxExpTime"), int((10 * 1000 + plain.clocks.GetValue()) / 160));

    // The gain reports no error and shows the resulting value.
    plain.fine.onWrite(throwRefusal);
    dialog.type("spBoxDigitalGain", QStringLiteral("1.5"));
    QCOMPARE(boxes.texts.size(), 1);
    QCOMPARE(dialog.gain(), 1.203); // 1.25 on the grid that starts at 1.078

    // The selection of a frame is tried once if it is refused, not repeatedly.
    plain.selector.onWrite(throwRefusal);
    dialog.pick("cmBoxFrameMode", "FrameB");
    Dialog::processEvents();
    QCOMPARE(boxes.texts.size(), 2);

    // The output mode may change while the error box is open.
    boxes.whileOpen = [&] { plain.mode.change(2); };
    QTest::keyClick(dialog.get("cmBoxFrameMode"), Qt::Key_Up);
    QCOMPARE(boxes.texts.size(), 3);
    QVERIFY(dialog.tabs()->isTabEnabled(1) && dialog.isOn("spBoxDualVideo"));
}

void TestFrameABDialog::otherCameraDuringWrite()
{
    PlainCamera plain;
    plain.lines.onWrite(throwRefusal);
    NodeMapDevice &device = *plain.device;
    Camera camera;

    // The program may set another device, or destroy the dialog, while the error box is open.
    {
        Dialog dialog(&device);
        ErrorBoxes boxes;
        boxes.whileOpen = [&] { dialog.SetDevice(&camera.device); };
        dialog.type("spBoxExpTime", 1001);
        Dialog::processEvents();
        QCOMPARE(boxes.texts.size(), 1);
        QCOMPARE(camera.writes(), 0);
        VERIFY_SAME(dialog, camera);
        dialog.type("spBoxExpTime", 10);
        QCOMPARE(camera.value("Frame_ExposureClocks"), Q_INT64_C(600));
    }
    QPointer<Dialog> dialog = new Dialog(&device);
    ErrorBoxes boxes;
    boxes.whileOpen = [&] {
        dialog->SetDevice(nullptr);
        dialog->SetDevice(&device); // same device, but a new binding
    };
    dialog->type("spBoxExpTime", 1001);
    QCOMPARE(boxes.texts.size(), 1);
    QCOMPARE(plain.clocks.writes(), 0);
    dialog->SetDevice(nullptr);
    plain.selector.onWrite(throwRefusal);
    plain.mode.change(1);
    boxes.whileOpen = [&] { delete dialog; };
    dialog->SetDevice(&device);
    QCOMPARE(boxes.texts.size(), 2);
    QVERIFY(!dialog);
}

void TestFrameABDialog::otherCameraWhileAFrameIsRefused()
{
    Camera camera;
    camera.choose("FrameMode", "DualVideo");
    for (OrvCam::Device *next : QList<OrvCam::Device *>{nullptr, &camera.device}) {
        for (const bool atOnce : {true, false}) {
            PlainCamera plain;
            plain.selector.onWrite(throwRefusal);
            plain.mode.change(atOnce ? 1 : 2);
            Dialog dialog(nullptr);
            ErrorBoxes boxes;
            boxes.whileOpen = [&] {
                dialog.SetDevice(next);
                plain.lines.change(77); // must not be shown any more
                plain.device->Release();
            };
            dialog.SetDevice(plain.device.get());
            if (!atOnce)
                QTest::keyClick(dialog.get("cmBoxFrameMode"), Qt::Key_Up);
            QCOMPARE(boxes.texts.size(), 1);
            QCOMPARE(dialog.isEnabled(), next != nullptr);
            QVERIFY(dialog.shown("spBoxExpLines") != 77);
            if (next)
                VERIFY_SAME(dialog, camera);
        }
    }
}

void TestFrameABDialog::currentSizeIsRefreshed()
{
    Camera camera;
    Dialog dialog(&camera.device);
    const auto *edit = dialog.get<QLineEdit>("lineEditFrameCurrentSize");
    QCOMPARE(edit->text(), QString("4096x3072"));
    camera.choose("Frame_DecimationMode", "Subsampling");
    QTRY_COMPARE_WITH_TIMEOUT(edit->text(), QString("2048x1536"), 2000);
    camera.device.part.missing = {"Frame_WidthActual"};
    dialog.SetDevice(&camera.device);
    QCOMPARE(edit->text(), QString("x1536"));
    camera.device.part.missing = {"Frame_WidthActual", "Frame_HeightActual"};
    dialog.SetDevice(&camera.device);
    QCOMPARE(edit->text(), QString());
}

namespace {

/// Uses the dialog and changes the camera from outside, in random order.
class Walk
{
public:
    Walk(Camera &camera, Dialog &dialog) : m_camera(camera), m_dialog(dialog) {}

    /// Performs a step; returns the permitted number of writes by the dialog.
    int step()
    {
        wrong.clear();
        return chance(3) ? outside() : user();
    }

    QString what;      ///< the last step
    int ownWrites = 0; ///< writes of the last step by this class

    /// The differences between the registers and the entered number; empty if there are none.
    QStringList wrong;

private:
    bool chance(int one) { return below(one) == 0; }
    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }
    template<class List>
    auto one(const List &list)
    {
        return *std::next(std::begin(list), below(int(std::end(list) - std::begin(list))));
    }
    int did(const QString &step, int allowed)
    {
        what = step;
        return allowed;
    }

    int user()
    {
        ownWrites = 0;
        switch (below(10)) {
        case 0: {
            const int tab = below(2);
            m_dialog.clickTab(tab);
            return did("tab " + QString::number(tab), 1);
        }
        case 1:
            return combo("cmBoxFrameMode");
        case 2:
            return number(one(bindingsOf("spBox")).widgets.first(), 1);
        case 3:
            return number(one(Names{"spBoxDualVideo", "spBoxFrameLineTime", "spBoxNumberOfFrameAs",
                                    "spBoxNumberOfFrameBs", "spBoxFixedFramePeriodValue"}),
                          1);
        case 4:
            return number(one(Names{"spBoxExpTime", "spBoxDigitalGain"}), 2);
        case 5:
            return click(one(one(bindingsOf("radioBtn")).widgets), 1);
        case 6:
            return click(one(bindingsOf("chBox")).widgets.first(), 1);
        case 7:
            return combo(one(bindingsOf("cmBox")).widgets.first());
        case 8:
            return preset();
        default:
            return drag();
        }
    }
    int number(const char *name, int allowed)
    {
        if (chance(2)) {
            QTest::keyClick(
                m_dialog.editor(name),
                one(QList<Qt::Key>{Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}));
            return did(QString("arrow ") + name, allowed);
        }
        const QWidget *const widget = m_dialog.get(name);
        const double min = widget->property("minimum").toDouble();
        const double max = widget->property("maximum").toDouble();
        const char *const feature = featureOf(name);
        const double unit = name == QByteArray("spBoxDigitalGain") ? 0.125
                            : feature ? double(m_camera.number(feature)->GetInc())
                                      : 1;
        const double entered = min + unit * std::floor((max - min) / unit * portion());
        const bool isNew = widget->property("value").toDouble() != entered;
        const bool isEnded = chance(2);
        m_dialog.type(name, QString::number(entered, 'g', 12), isEnded);
        if (!isEnded) // removes the focus without committing
            m_dialog.get("lineEditFrameCurrentSize")->setFocus();
        if (isNew && m_dialog.isOn(name))
            checkRegisters(name, entered, entered == min || entered == max);
        return did(QString("%1 %2").arg(name).arg(entered), allowed);
    }
    /// Compares the registers with the number that the user has entered.
    void checkRegisters(const QByteArray &name, double entered, bool isEnd)
    {
        const auto expect = [&](const char *feature, double value) {
            const double there = double(m_camera.value(feature));
            if (there != value)
                wrong << QString("%1 is %2, not %3").arg(feature).arg(there).arg(value);
        };
        const double lineTime = double(m_camera.value("Frame_LineTime"));
        const double clocks = entered * double(m_camera.value("PixelClock"));
        const double mostLines = double(m_camera.number("Frame_ExposureLines")->GetMax());
        const double coarse = std::floor(std::log2(entered));
        if (name == "spBoxExpTime" && clocks / lineTime <= mostLines) {
            expect("Frame_ExposureLines", std::floor(clocks / lineTime));
            expect("Frame_ExposureClocks", std::fmod(clocks, lineTime));
        } else if (name == "spBoxFixedFramePeriodValue" && !isEnd) {
            expect("Frame_FixedFramePeriodValue", std::floor(clocks / lineTime + 0.5));
        } else if (name == "spBoxDigitalGain" && !isEnd) {
            expect("Frame_DigitalCourseGain", coarse);
            expect("Frame_DigitalFineGain", std::floor((entered / std::exp2(coarse) - 1) * 64));
        }
        if (const char *feature = featureOf(name))
            expect(feature, entered);
    }
    /// The feature that gets the entered number without conversion; null if there is none.
    static const char *featureOf(const QByteArray &widget)
    {
        static const Binding others[] = {
            {"Frame_LineTime", {"spBoxDualVideo", "spBoxFrameLineTime"}},
            {"NumberOfFrameAs", {"spBoxNumberOfFrameAs"}},
            {"NumberOfFrameBs", {"spBoxNumberOfFrameBs"}}};
        for (const auto &list : {QVector<Binding>(std::begin(bindings), std::end(bindings)),
                                 QVector<Binding>(std::begin(others), std::end(others))}) {
            for (const Binding &b : list) {
                if (b.isOf(widget))
                    return b.feature;
            }
        }
        return nullptr;
    }
    int click(const char *name, int allowed)
    {
        m_dialog.click(name);
        return did(name, allowed);
    }
    int combo(const char *name)
    {
        QTest::keyClick(m_dialog.get(name), chance(2) ? Qt::Key_Down : Qt::Key_Up);
        return did(name, name == QByteArray("cmBoxFrameMode") ? 2 : 1);
    }
    int preset()
    {
        const char *name = one(presetButtons);
        m_dialog.wantsCustom(name == presetButtons[2] && presetOf(m_camera) != 2 ? areaOf(m_camera)
                                                                                 : Area());
        return click(name, 4);
    }
    int drag()
    {
        const char *name = one(Names{"spBoxBlackLevel", "spBoxDigitalGain", "spBoxFrameLineTime",
                                     "spBoxDualVideo", "spBoxFixedFramePeriodValue"});
        m_dialog.drag(name, double(below(100)) / 100);
        return did(QString("drag ") + name, 2);
    }
    /// Small numbers are as likely as large ones.
    double portion() { return std::pow(double(below(1001)) / 1000, 1 + below(6)); }

    int outside()
    {
        const int before = m_camera.writes();
        int allowed = 0;
        switch (below(6)) {
        case 0:
            m_camera.choose("FrameAB_Selector", chance(2) ? "FrameA" : "FrameB");
            allowed = did("outside: the frame", 1);
            break;
        case 1:
            m_camera.choose("FrameMode", one(Names{"FrameA", "FrameB", "DualVideo"}));
            allowed = did("outside: the output mode", 1);
            break;
        case 2:
            m_camera.set("SensorClockDivider", 16 << below(4));
            allowed = did("outside: the pixel clock", 0);
            break;
        case 3:
            allowed =
                chooseOutside(chance(4) ? "TriggerMode" : one(bindingsOf("radioBtn")).feature);
            break;
        case 4:
            m_camera.turn(one(bindingsOf("chBox")).feature, chance(2));
            allowed = did("outside: a switch", 0);
            break;
        default:
            allowed = setOutside(chance(3) ? one(Names{"Frame_LineTime", "Frame_DigitalCourseGain",
                                                       "Frame_DigitalFineGain", "NumberOfFrameAs",
                                                       "Frame_FixedFramePeriodValue"})
                                           : one(bindingsOf("spBox")).feature);
        }
        // The dialog reacts to a notification within the write or later, in the event loop.
        ownWrites = qMin(m_camera.writes() - before, 1);
        return allowed;
    }
    int chooseOutside(const char *feature)
    {
        OrvGenParam::Enum *param = m_camera.choice(feature);
        param->SetIntValue(
            param->GetEntry(uint32_t(below(int(param->GetEntryCount()))))->GetValue());
        return did(QString("outside: ") + feature, 0);
    }
    int setOutside(const char *feature)
    {
        OrvGenParam::Int *param = m_camera.number(feature);
        const qint64 min = param->GetMin();
        const qint64 steps = (param->GetMax() - min) / qMax<qint64>(param->GetInc(), 1);
        param->SetValue(min + qint64(double(steps) * portion()) * param->GetInc());
        return did(QString("outside: ") + feature, 0);
    }

    Camera &m_camera;
    Dialog &m_dialog;
    std::mt19937 m_random{20261121};
};

} // namespace

void TestFrameABDialog::randomWalk()
{
    Camera camera;
    Dialog dialog(&camera.device);
    const ErrorBoxes boxes;
    Walk walk(camera, dialog);
    int mostWrites = 0;
    for (int i = 0; i < 2500; ++i) {
        const int before = camera.writes();
        const int allowed = walk.step();
        Dialog::processEvents();
        const int writes = camera.writes() - before - walk.ownWrites;
        const QString where = QString("step %1: %2").arg(i).arg(walk.what);
        QVERIFY2(boxes.texts.isEmpty(), qPrintable(where + ": " + boxes.texts.join(' ')));
        const QStringList differences = dialog.differences(camera);
        QVERIFY2(differences.isEmpty(), qPrintable(where + ": " + differences.join("; ")));
        QVERIFY2(walk.wrong.isEmpty(), qPrintable(where + ": " + walk.wrong.join("; ")));
        QVERIFY2(writes <= allowed, qPrintable(where + ": " + QString::number(writes) + " writes"));
        mostWrites = qMax(mostWrites, writes);
        if (i % 50 == 0) // timers must not cause any writes
            QTest::qWait(1);
    }
    // Checks that not all the widgets were disabled.
    QVERIFY(mostWrites >= 3 && camera.writes() > 1000);
    qInfo("%d writes, at most %d in reply", camera.writes(), mostWrites);
}

QTEST_MAIN(TestFrameABDialog)
#include "tst_frameabdialog.moc"

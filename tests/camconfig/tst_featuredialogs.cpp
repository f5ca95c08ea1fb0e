// SPDX-License-Identifier: MIT
#include "camconfigtestsupport.h"

#include <genapi/memorynodemap.h>
#include <orvcamconfigpulsedialog.h>
#include <orvcamconfigtriggerdialog.h>
#include <qtorvslider.h>
#include <qtorvspinbox.h>
#include <qtorvspinboxval.h>

using namespace OrvGenApi;
using namespace OrvGui;

namespace {

/// A camera that counts what is read and written, feature by feature, and can be made to fail.
struct CountingCamera
{
    CountingCamera()
        : mode(add("TriggerMode", {{"Off", 0}, {"On", 1}}))
        , source(add("TriggerSource", {{"Line", 0}, {"Software", 1}, {"software", 2}}))
        , edge(add("TriggerActivation", {{"Rising", 0}, {"Falling", 1}}))
        , debounce(add("TriggerDebounce", {{"None", 0}, {"Long", 1}}))
        , fire(map.addCommand("TriggerSoftware"))
        , granularity(add("PulseGenGranularity", {{"Us1", 0}, {"Ms1", 3}}))
        , period(add("PulseGenPeriod", 1000))
        , width(add("PulseGenWidth", 200))
        , pulses(add("PulseGenNumPulses", 10))
        , pulseMode(add("PulseGenMode", {{"Endlos", 7}, {"Gezählt", 4}}))
        , enable(map.addBoolean("PulseGenEnable"))
        , device(map)
    {
        pulseMode.change(7);
    }

    MemoryEnumeration &add(const char *name,
                           std::initializer_list<std::pair<std::string, int64_t>> entries)
    {
        return map.addEnumeration(name, entries);
    }
    MemoryInteger &add(const char *name, int64_t value)
    {
        MemoryInteger &node = map.addInteger(name, value);
        node.setLimits(0, 10000000);
        return node;
    }

    MemoryNodeMap map;
    MemoryEnumeration &mode, &source, &edge, &debounce;
    MemoryCommand &fire;
    MemoryEnumeration &granularity;
    MemoryInteger &period, &width, &pulses;
    MemoryEnumeration &pulseMode;
    MemoryBoolean &enable;
    NodeMapDevice device;
};

void refuse()
{
    throw GenICam::AccessException("no", __FILE__, __LINE__);
}

template<class T>
T *part(const QWidget &dialog, const char *name)
{
    T *widget = dialog.findChild<T *>(QLatin1String(name));
    if (!widget)
        qFatal("No %s", name);
    return widget;
}

QComboBox *combo(const QWidget &dialog, const char *name)
{
    return part<QComboBox>(dialog, name);
}

void click(const QWidget &dialog, const char *name)
{
    auto *button = part<QAbstractButton>(dialog, name);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

/// Opens the list and clicks on the entry, as a user does.
void choose(QComboBox *box, const QString &text)
{
    const int row = box->findText(text);
    QVERIFY2(row >= 0, qPrintable(text));
    QTest::mouseClick(box, Qt::LeftButton);
    const QModelIndex item = box->model()->index(row, 0);
    QVERIFY(box->view()->isVisible());
    QTest::qWait(QApplication::doubleClickInterval() + 10); // what comes sooner only opens the list
    QTest::mouseMove(box->view()->viewport(), box->view()->visualRect(item).center());
    QTest::mouseClick(box->view()->viewport(), Qt::LeftButton, {},
                      box->view()->visualRect(item).center());
}

void type(QtOrvSpinBox *spinBox, const char *number)
{
    spinBox->spinBox()->selectAll();
    QTest::keyClicks(spinBox->spinBox(), QLatin1String(number));
    QTest::keyClick(spinBox->spinBox(), Qt::Key_Return);
}

QStringList disabled(const QWidget &dialog, std::initializer_list<const char *> names)
{
    QStringList found;
    for (const char *name : names) {
        if (!part<QWidget>(dialog, name)->isEnabled())
            found << QLatin1String(name);
    }
    return found;
}

QStringList list(std::initializer_list<const char *> names)
{
    QStringList all;
    for (const char *name : names)
        all << QLatin1String(name);
    return all;
}

const auto triggerNames = {"chBoxTriggerEnable", "cmBoxTriggerSource", "cmBoxTriggerEdge",
                           "cmBoxTriggerDebounce", "pushBtnSoftwareTrigger"};
const auto pulseNames = {"spBoxWidth",         "cmBoxGranularity",   "spBoxPeriod",
                         "pushBtnPulseEnable", "radioBtnContinious", "radioBtnSend",
                         "spBoxNumPulses"};

bool shows(const QWidget &dialog, const char *label, const char *resource)
{
    const QPixmap *pixmap = part<QLabel>(dialog, label)->pixmap();
    return pixmap && !pixmap->isNull() &&
           pixmap->toImage() == QPixmap(QLatin1String(resource)).toImage();
}

using MakeDialog = std::function<std::unique_ptr<OrvCamConfigDialog>(OrvCam::Device *)>;

template<class Dialog>
MakeDialog maker()
{
    return [](OrvCam::Device *device) { return std::make_unique<Dialog>(device, nullptr); };
}

} // namespace

Q_DECLARE_METATYPE(MakeDialog)

class TestFeatureDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setDoubleClickInterval(20); }
    void triggerBothDirections();
    void triggerRules();
    void pulseBothDirections();
    void pulseForm();
    void pulseDerivedValues();
    void pulseButton();
    void pulseAccess();
    void withoutCamera_data() { dialogs(); }
    void withoutCamera();
    void missingFeatures_data() { dialogs(); }
    void missingFeatures();
    void closing_data() { dialogs(); }
    void closing();
    void settingAgain();
    void lifetimes_data() { dialogs(); }
    void lifetimes();
    void fromInside();
    void sharing();
    void readsOnce();
    void transactions();
    void refusals();

private:
    void dialogs();
};

void TestFeatureDialogs::dialogs()
{
    QTest::addColumn<MakeDialog>("make");
    QTest::newRow("trigger") << maker<OrvCamConfigTriggerDialog>();
    QTest::newRow("pulse") << maker<OrvCamConfigPulseDialog>();
}

void TestFeatureDialogs::triggerBothDirections()
{
    SimulatedDevice sim;
    OrvCamConfigTriggerDialog dialog(&sim.device);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));

    click(dialog, "chBoxTriggerEnable");
    QCOMPARE(sim.get("TriggerMode"), QStringLiteral("On"));
    choose(combo(dialog, "cmBoxTriggerSource"), "Software");
    QCOMPARE(sim.get("TriggerSource"), QStringLiteral("Software"));
    choose(combo(dialog, "cmBoxTriggerEdge"), "FallingEdge");
    QCOMPARE(sim.get("TriggerActivation"), QStringLiteral("FallingEdge"));
    choose(combo(dialog, "cmBoxTriggerDebounce"), "Us50");
    QCOMPARE(sim.get("TriggerDebounce"), QStringLiteral("Us50"));
    const int count = sim.get("TriggerCount").toInt();
    click(dialog, "pushBtnSoftwareTrigger");
    sim.camera.advance(0);
    QCOMPARE(sim.get("TriggerCount").toInt(), count + 1);
    QVERIFY(part<QWidget>(dialog, "pushBtnSoftwareTrigger")->isEnabled());
    click(dialog, "chBoxTriggerEnable");
    QCOMPARE(sim.get("TriggerMode"), QStringLiteral("Off"));

    sim.set("TriggerMode", "On");
    QVERIFY(part<QCheckBox>(dialog, "chBoxTriggerEnable")->isChecked());
    sim.set("TriggerSource", "IN2");
    QCOMPARE(combo(dialog, "cmBoxTriggerSource")->currentText(), QStringLiteral("IN2"));
    sim.set("TriggerActivation", "RisingEdge");
    QCOMPARE(combo(dialog, "cmBoxTriggerEdge")->currentText(), QStringLiteral("RisingEdge"));
    sim.set("TriggerDebounce", "Ms10");
    QCOMPARE(combo(dialog, "cmBoxTriggerDebounce")->currentText(), QStringLiteral("Ms10"));
    QCOMPARE(combo(dialog, "cmBoxTriggerDebounce")->count(), 8);
}

void TestFeatureDialogs::triggerRules()
{
    const auto whenOff = {"cmBoxTriggerSource", "cmBoxTriggerEdge", "cmBoxTriggerDebounce",
                          "pushBtnSoftwareTrigger"};
    const auto state = [](const QWidget &dialog) { return disabled(dialog, triggerNames); };
    const QStringList button = list({"pushBtnSoftwareTrigger"});
    SimulatedDevice sim;
    sim.set("TriggerSource", "IN1");
    OrvCamConfigTriggerDialog dialog(&sim.device);
    dialog.show();
    QCOMPARE(state(dialog), list(whenOff));
    for (bool outside : {false, true}) {
        const auto change = [&](const char *feature, const char *value, const char *box) {
            if (outside)
                sim.set(feature, value);
            else if (box)
                choose(combo(dialog, box), value);
            else
                click(dialog, "chBoxTriggerEnable");
        };
        change("TriggerMode", "On", nullptr);
        QCOMPARE(state(dialog), button);
        change("TriggerSource", "Software", "cmBoxTriggerSource");
        QCOMPARE(state(dialog), QStringList());
        change("TriggerSource", "PulseGenerator", "cmBoxTriggerSource");
        QCOMPARE(state(dialog), button);
        change("TriggerSource", "Software", "cmBoxTriggerSource");
        change("TriggerMode", "Off", nullptr);
        QCOMPARE(state(dialog), list(whenOff));
        change("TriggerMode", "On", nullptr);
        QCOMPARE(state(dialog), QStringList());
        sim.set("TriggerSource", "IN1");
        sim.set("TriggerMode", "Off");
    }

    // A camera whose command does not know when it makes sense; only this very name counts.
    CountingCamera camera;
    camera.mode.change(1);
    camera.source.change(2);
    dialog.SetDevice(&camera.device);
    QCOMPARE(state(dialog), button);
    camera.source.change(1);
    QCOMPARE(state(dialog), QStringList());
    camera.edge.setAccessMode(GenApi::RO);
    camera.fire.setAccessMode(GenApi::NA);
    QCOMPARE(state(dialog), list({"cmBoxTriggerEdge", "pushBtnSoftwareTrigger"}));
    camera.mode.setAccessMode(GenApi::NA);
    QVERIFY(state(dialog).contains("chBoxTriggerEnable"));

    // A notification enables what can be written, whatever the check box says.
    camera.mode.setAccessMode(GenApi::RW);
    camera.mode.change(0);
    QVERIFY(state(dialog).contains("cmBoxTriggerDebounce"));
    camera.debounce.changed();
    QVERIFY(!state(dialog).contains("cmBoxTriggerDebounce"));
}

void TestFeatureDialogs::pulseBothDirections()
{
    SimulatedDevice sim;
    OrvCamConfigPulseDialog dialog(&sim.device);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const auto spinBox = [&](const char *name) { return part<QtOrvSpinBox>(dialog, name); };

    choose(combo(dialog, "cmBoxGranularity"), "Us100");
    QCOMPARE(sim.get("PulseGenGranularity"), QStringLiteral("Us100"));
    type(spinBox("spBoxPeriod"), "5000");
    QCOMPARE(sim.get("PulseGenPeriod"), QStringLiteral("5000"));
    type(spinBox("spBoxWidth"), "750");
    QCOMPARE(sim.get("PulseGenWidth"), QStringLiteral("750"));
    click(dialog, "radioBtnSend");
    QCOMPARE(sim.get("PulseGenMode"), QStringLiteral("Burst"));
    type(spinBox("spBoxNumPulses"), "12");
    QCOMPARE(sim.get("PulseGenNumPulses"), QStringLiteral("12"));
    QTest::keyClick(spinBox("spBoxNumPulses")->spinBox(), Qt::Key_Up);
    QCOMPARE(sim.get("PulseGenNumPulses"), QStringLiteral("13"));
    click(dialog, "radioBtnContinious");
    QCOMPARE(sim.get("PulseGenMode"), QStringLiteral("Continuous"));
    click(dialog, "pushBtnPulseEnable");
    QCOMPARE(sim.get("PulseGenEnable"), QStringLiteral("1"));
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keySequence(&dialog, QKeySequence("Ctrl+Shift+S, Ctrl+Shift+S"));
    QTRY_COMPARE(sim.get("PulseGenEnable"), QStringLiteral("0")); // the button shows the click

    sim.set("PulseGenGranularity", "Ms1");
    QCOMPARE(combo(dialog, "cmBoxGranularity")->currentText(), QStringLiteral("Ms1"));
    sim.set("PulseGenPeriod", "8000000");
    QCOMPARE(spinBox("spBoxPeriod")->value(), 8000000);
    sim.set("PulseGenWidth", "3");
    QCOMPARE(spinBox("spBoxWidth")->value(), 3);
    sim.set("PulseGenMode", "Burst");
    QVERIFY(part<QRadioButton>(dialog, "radioBtnSend")->isChecked());
    sim.set("PulseGenNumPulses", "65535");
    QCOMPARE(spinBox("spBoxNumPulses")->value(), 65535);
    sim.set("PulseGenEnable", "1");
    QVERIFY(part<QPushButton>(dialog, "pushBtnPulseEnable")->isChecked());
}

void TestFeatureDialogs::pulseForm()
{
    CountingCamera camera;
    OrvCamConfigPulseDialog dialog(&camera.device);
    dialog.show();
    QCOMPARE(part<QLabel>(dialog, "lblWidth")->text(), QString::fromUtf8("Width [μs]:"));
    QCOMPARE(part<QLabel>(dialog, "lblDelay")->text(), QString::fromUtf8("Delay [μs]:"));
    dialog.SetDevice(&camera.device);
    QCOMPARE(part<QLabel>(dialog, "lblPeriod")->text(), QString::fromUtf8("Period [μs]:"));
    QVERIFY(shows(dialog, "label", ":/images/res/pulseimage.bmp"));
    QVERIFY(!dialog.windowIcon().isNull());

    // The camera's entries are what the radio buttons stand for.
    QCOMPARE(part<QRadioButton>(dialog, "radioBtnContinious")->text(), QStringLiteral("Endlos"));
    QCOMPARE(part<QRadioButton>(dialog, "radioBtnSend")->text(), QString::fromUtf8("Gezählt"));
    click(dialog, "radioBtnSend");
    QCOMPARE(camera.pulseMode.GetIntValue(), int64_t(4));
    QCOMPARE(camera.pulseMode.writes(), 1);

    for (const char *name : {"spBoxPeriod", "spBoxWidth", "spBoxNumPulses"}) {
        const auto *box = part<QtOrvSpinBox>(dialog, name);
        QCOMPARE(box->sliderOrientation(), Qt::Horizontal);
        QCOMPARE(box->slider()->size(), box->size());
        QCOMPARE(box->slider()->scaleType() == QtOrvSlider::ScaleLog10,
                 qstrcmp(name, "spBoxNumPulses") != 0);
    }
    const int side = part<QWidget>(dialog, "pushBtnPulseEnable")->height();
    QCOMPARE(part<QWidget>(dialog, "lblPulseEnable")->maximumSize(), QSize(side, side));
}

void TestFeatureDialogs::pulseDerivedValues()
{
    CountingCamera camera;
    OrvCamConfigPulseDialog dialog(&camera.device);
    dialog.show();
    const auto shown = [&] {
        return QStringList{part<QLineEdit>(dialog, "lineEditDelay")->text(),
                           part<QLineEdit>(dialog, "lineEditFreq")->text()};
    };
    QCOMPARE(shown(), QStringList({"800", "1000.000000"}));
    type(part<QtOrvSpinBox>(dialog, "spBoxWidth"), "1500");
    QCOMPARE(shown(), QStringList({"-500", "1000.000000"}));
    camera.period.change(0);
    QCOMPARE(shown(), QStringList({"-1500", "0.000000"}));
    camera.period.change(3);
    QCOMPARE(shown(), QStringList({"-1497", "333333.333333"}));
    camera.granularity.change(3); // no part of it
    QCOMPARE(shown(), QStringList({"-1497", "333333.333333"}));
    CountingCamera other;
    dialog.SetDevice(&other.device);
    QCOMPARE(shown(), QStringList({"800", "1000.000000"}));
    QVERIFY(!part<QWidget>(dialog, "lineEditDelay")->isEnabled());
    QVERIFY(!part<QWidget>(dialog, "lineEditFreq")->isEnabled());
}

void TestFeatureDialogs::pulseButton()
{
    CountingCamera camera;
    OrvCamConfigPulseDialog dialog(&camera.device);
    dialog.show();
    auto *button = part<QPushButton>(dialog, "pushBtnPulseEnable");
    const QKeySequence shortcut("Ctrl+Shift+S, Ctrl+Shift+S");
    const auto isShown = [&](bool running) {
        return button->text() == QLatin1String(running ? "Stop" : "Start") &&
               button->isChecked() == running && button->shortcut() == shortcut &&
               shows(dialog, "lblPulseEnable",
                     running ? ":/icons/res/greenball.ico" : ":/icons/res/redball.ico");
    };
    QVERIFY(isShown(false));
    click(dialog, "pushBtnPulseEnable");
    QVERIFY(isShown(true));
    QVERIFY(camera.enable.GetValue());
    click(dialog, "pushBtnPulseEnable");
    QVERIFY(isShown(false));
    QVERIFY(!camera.enable.GetValue());
    QCOMPARE(camera.enable.writes(), 2);

    // What the camera does by itself moves the button, not its text and lamp.
    camera.enable.change(true);
    QVERIFY(button->isChecked());
    QCOMPARE(button->text(), QStringLiteral("Start"));
    dialog.SetDevice(&camera.device);
    QVERIFY(isShown(true));
    camera.enable.change(false);
    QCOMPARE(button->text(), QStringLiteral("Stop"));
    QVERIFY(shows(dialog, "lblPulseEnable", ":/icons/res/greenball.ico"));
    dialog.SetDevice(&camera.device);
    QVERIFY(isShown(false));
}

void TestFeatureDialogs::pulseAccess()
{
    SimulatedDevice sim;
    OrvCamConfigPulseDialog dialog(&sim.device);
    dialog.show();
    const auto state = [&] { return disabled(dialog, pulseNames); };
    const QStringList count = list({"spBoxNumPulses"});
    QCOMPARE(state(), count); // nothing to count
    sim.set("PulseGenMode", "Burst");
    QCOMPARE(state(), QStringList());
    click(dialog, "pushBtnPulseEnable");
    const QStringList whileRunning =
        list({"cmBoxGranularity", "radioBtnContinious", "radioBtnSend", "spBoxNumPulses"});
    QCOMPARE(state(), whileRunning);

    // The burst ends by itself, which the camera is asked for.
    sim.camera.advance(60);
    sim.map->Poll(200);
    QVERIFY(!part<QPushButton>(dialog, "pushBtnPulseEnable")->isChecked());
    QCOMPARE(state(), QStringList());
    click(dialog, "radioBtnContinious");
    QCOMPARE(state(), count);

    // A new dialog finds locked features as they stand, until the camera says something.
    sim.set("PulseGenMode", "Burst");
    sim.set("PulseGenEnable", "1");
    OrvCamConfigPulseDialog late(&sim.device);
    QCOMPARE(disabled(late, pulseNames), QStringList());
    sim.map->Poll(200);
    QCOMPARE(disabled(late, pulseNames), whileRunning);
}

void TestFeatureDialogs::withoutCamera()
{
    QFETCH(MakeDialog, make);
    CountingCamera good;
    CountingCamera bad;
    const auto dialog = make(nullptr);
    dialog->show();
    QVERIFY(!dialog->isEnabled());
    QVERIFY(!dialog->windowTitle().isEmpty());
    dialog->SetDevice(&good.device);
    QVERIFY(dialog->isEnabled());
    QCOMPARE(good.device.asked, 1);
    bad.device.error = OrvCam::ErrorTimeout;
    dialog->SetDevice(&bad.device);
    QVERIFY(!dialog->isEnabled());
    bad.device.error = OrvCam::Success;
    bad.device.Release();
    dialog->SetDevice(&bad.device);
    QVERIFY(!dialog->isEnabled());
    dialog->SetDevice(&good.device);
    QVERIFY(dialog->isEnabled());
    dialog->SetDevice(nullptr);
    QVERIFY(!dialog->isEnabled());
    good.mode.change(1);
    good.period.change(5);
    QVERIFY(!dialog->isEnabled());
}

void TestFeatureDialogs::missingFeatures()
{
    QFETCH(MakeDialog, make);
    MemoryNodeMap nothing;
    nothing.addInteger("TriggerMode"); // of another kind
    NodeMapDevice empty(nothing);
    CountingCamera full;
    full.mode.change(1);
    full.source.change(1);
    ErrorBoxes boxes;
    const auto dialog = make(&full.device);
    dialog->show();
    dialog->SetDevice(&empty);
    QVERIFY(dialog->isEnabled());
    if (auto *check = dialog->findChild<QCheckBox *>()) {
        // The dialog's own rule goes by the check box as the last camera left it, and enables boxes
        // that write nothing.
        QVERIFY(!check->isEnabled());
        QCOMPARE(disabled(*dialog, triggerNames), list({"chBoxTriggerEnable"}));
        for (QComboBox *box : dialog->findChildren<QComboBox *>()) {
            QTest::keyClick(box, Qt::Key_Up);
            QTest::keyClick(box, Qt::Key_Down);
        }
    } else {
        QCOMPARE(disabled(*dialog, pulseNames), list(pulseNames));
        QCOMPARE(part<QPushButton>(*dialog, "pushBtnPulseEnable")->text(), QStringLiteral("Start"));
        QVERIFY(shows(*dialog, "lblPulseEnable", ":/icons/res/redball.ico"));
    }
    QCOMPARE(full.source.writes() + full.edge.writes() + full.granularity.writes(), 0);
    QCOMPARE(boxes.texts, QStringList());
}

void TestFeatureDialogs::closing()
{
    QFETCH(MakeDialog, make);
    CountingCamera camera;
    auto dialog = make(&camera.device);
    QSignalSpy closings(dialog.get(), &OrvCamConfigDialog::closing);
    int expected = 0;
    for (bool escape : {false, true, false}) {
        dialog->show();
        QVERIFY(dialog->isVisible());
        if (escape)
            QTest::keyClick(dialog.get(), Qt::Key_Escape);
        else
            dialog->close();
        QVERIFY(!dialog->isVisible());
        QCOMPARE(closings.size(), ++expected);
    }
    dialog->reject(); // is closed already
    QCOMPARE(closings.size(), expected);

    // The Return key is for the numbers; it neither closes the dialog nor presses a button.
    dialog->show();
    QTest::keyClick(dialog.get(), Qt::Key_Return);
    QVERIFY(dialog->isVisible());
    QCOMPARE(camera.fire.writes() + camera.enable.writes(), 0);

    // A host may destroy it as soon as it hears.
    connect(dialog.get(), &OrvCamConfigDialog::closing, [&] { dialog.reset(); });
    dialog->close();
    QVERIFY(!dialog);
}

void TestFeatureDialogs::settingAgain()
{
    CountingCamera camera;
    camera.mode.change(1);
    camera.source.change(1);
    OrvCamConfigTriggerDialog trigger(&camera.device);
    OrvCamConfigPulseDialog pulse(&camera.device);
    for (int i = 0; i < 10; ++i) {
        trigger.SetDevice(&camera.device);
        pulse.SetDevice(&camera.device);
    }
    trigger.show();
    pulse.show();
    QVERIFY(disabled(trigger, triggerNames).isEmpty());
    QVERIFY(disabled(pulse, pulseNames).isEmpty());
    QCOMPARE(combo(trigger, "cmBoxTriggerSource")->count(), 3);

    click(trigger, "pushBtnSoftwareTrigger");
    QCOMPARE(camera.fire.writes(), 1);
    choose(combo(trigger, "cmBoxTriggerEdge"), "Falling");
    QCOMPARE(camera.edge.writes(), 1);
    choose(combo(trigger, "cmBoxTriggerDebounce"), "Long");
    QCOMPARE(camera.debounce.writes(), 1);
    choose(combo(trigger, "cmBoxTriggerSource"), "Line");
    QCOMPARE(camera.source.writes(), 1);
    click(trigger, "chBoxTriggerEnable");
    QCOMPARE(camera.mode.writes(), 1);
    choose(combo(pulse, "cmBoxGranularity"), "Ms1");
    QCOMPARE(camera.granularity.writes(), 1);
    type(part<QtOrvSpinBox>(pulse, "spBoxPeriod"), "500");
    QCOMPARE(camera.period.writes(), 1);
    type(part<QtOrvSpinBox>(pulse, "spBoxWidth"), "50");
    QCOMPARE(camera.width.writes(), 1);
    type(part<QtOrvSpinBox>(pulse, "spBoxNumPulses"), "5");
    QCOMPARE(camera.pulses.writes(), 1);
    click(pulse, "radioBtnSend");
    QCOMPARE(camera.pulseMode.writes(), 1);
    click(pulse, "pushBtnPulseEnable");
    QCOMPARE(camera.enable.writes(), 1);

    // Nor does the first camera get what is meant for the second.
    CountingCamera second;
    pulse.SetDevice(&second.device);
    camera.period.change(77);
    camera.width.setAccessMode(GenApi::NA);
    QCOMPARE(part<QtOrvSpinBox>(pulse, "spBoxPeriod")->value(), 1000);
    QVERIFY(part<QWidget>(pulse, "spBoxWidth")->isEnabled());
    type(part<QtOrvSpinBox>(pulse, "spBoxPeriod"), "400");
    QCOMPARE(camera.period.writes(), 1);
    QCOMPARE(second.period.writes(), 1);
}

void TestFeatureDialogs::lifetimes()
{
    QFETCH(MakeDialog, make);
    const auto pokeAll = [](CountingCamera &camera) {
        for (MemoryEnumeration *node :
             {&camera.mode, &camera.source, &camera.edge, &camera.debounce, &camera.granularity})
            node->change(1 - node->GetIntValue());
        camera.period.change(4);
        camera.width.change(3);
        camera.pulseMode.change(4);
        camera.enable.change(true);
        camera.fire.changed();
    };
    auto camera = std::make_unique<CountingCamera>();
    camera->granularity.change(0);

    // The dialog goes first, shown or not.
    for (bool shown : {false, true}) {
        auto dialog = make(&camera->device);
        dialog->setVisible(shown);
        dialog.reset();
        pokeAll(*camera);
    }

    // The camera goes first: nothing is left that could be used, until there is another one.
    const auto dialog = make(&camera->device);
    dialog->show();
    const auto names = dialog->findChild<QCheckBox *>() ? triggerNames : pulseNames;
    QVERIFY(disabled(*dialog, names) != list(names));
    camera->device.Release();
    QCOMPARE(disabled(*dialog, names), list(names));
    camera.reset();
    for (const char *name : names) {
        auto *widget = part<QWidget>(*dialog, name);
        QTest::mouseClick(widget, Qt::LeftButton);
        QTest::keyClick(widget, Qt::Key_Down);
    }
    dialog->close();
    dialog->show();
    CountingCamera next;
    dialog->SetDevice(&next.device);
    QVERIFY(disabled(*dialog, names) != list(names));
    pokeAll(next);

    // Both lost and back under the same device.
    next.device.array->detach(OrvCam::ErrorGone);
    QCOMPARE(disabled(*dialog, names), list(names));
    next.device.array = std::make_unique<OrvGenParam::NodeMapArray>(next.map);
    dialog->SetDevice(&next.device);
    QVERIFY(disabled(*dialog, names) != list(names));
}

void TestFeatureDialogs::fromInside()
{
    CountingCamera first;
    CountingCamera second;
    second.period.change(90);
    second.width.change(60);
    second.period.setLimits(50, 100);
    second.mode.change(1);
    ErrorBoxes boxes;
    const auto valueChanged = static_cast<void (QtOrvSpinBox::*)(int)>(&QtOrvSpinBox::valueChanged);

    // Another camera while a change of the first is being shown; and none.
    OrvCamConfigPulseDialog pulse(&first.device);
    pulse.show();
    auto *period = part<QtOrvSpinBox>(pulse, "spBoxPeriod");
    for (OrvCam::Device *next :
         {static_cast<OrvCam::Device *>(&second.device), static_cast<OrvCam::Device *>(nullptr)}) {
        pulse.SetDevice(&first.device);
        connect(period, valueChanged, [&, next] { pulse.SetDevice(next); });
        first.period.setLimits(2000, 9000);
        QCOMPARE(pulse.isEnabled(), next != nullptr);
        if (next) {
            QCOMPARE(period->value(), 90);
            QCOMPARE(period->maximum(), 100);
            QCOMPARE(period->minimum(), 50);
            QCOMPARE(part<QLineEdit>(pulse, "lineEditDelay")->text(), QStringLiteral("30"));
        }
        first.period.setLimits(0, 10000);
        first.period.change(700);
    }

    // Another camera while the first is being bound: the last one set counts.
    OrvCamConfigTriggerDialog trigger(nullptr);
    trigger.show();
    bool isFirst = true;
    first.source.onRead([&] {
        if (std::exchange(isFirst, false))
            trigger.SetDevice(&second.device);
    });
    trigger.SetDevice(&first.device);
    QVERIFY(trigger.isEnabled());
    QVERIFY(part<QCheckBox>(trigger, "chBoxTriggerEnable")->isChecked());
    click(trigger, "chBoxTriggerEnable");
    QCOMPARE(first.mode.writes(), 0);
    QCOMPARE(second.mode.writes(), 1);
    first.mode.change(1);
    QVERIFY(!part<QCheckBox>(trigger, "chBoxTriggerEnable")->isChecked());

    // Notifications, of features bound already and of the one that is being bound.
    CountingCamera third;
    third.mode.change(1);
    third.edge.onRead([&] {
        third.mode.changed();
        third.source.change(1);
    });
    int depth = 0;
    third.debounce.onRead([&] {
        if (depth++ == 0)
            third.debounce.changed();
    });
    trigger.SetDevice(&third.device);
    QCOMPARE(combo(trigger, "cmBoxTriggerSource")->currentText(), QStringLiteral("Software"));
    QCOMPARE(disabled(trigger, triggerNames), QStringList());

    QCOMPARE(first.period.writes() + second.period.writes() + first.width.writes() +
                 second.width.writes() + third.source.writes(),
             0);
    QCOMPARE(boxes.texts, QStringList());
}

void TestFeatureDialogs::sharing()
{
    CountingCamera camera;
    OrvCamConfigPulseDialog one(&camera.device);
    auto two = std::make_unique<OrvCamConfigPulseDialog>(&camera.device);
    OrvCamConfigTriggerDialog other(&camera.device);
    one.show();
    two->show();
    type(part<QtOrvSpinBox>(one, "spBoxPeriod"), "640");
    QCOMPARE(part<QtOrvSpinBox>(*two, "spBoxPeriod")->value(), 640);
    QCOMPARE(part<QLineEdit>(*two, "lineEditDelay")->text(), QStringLiteral("440"));
    click(*two, "radioBtnSend");
    QVERIFY(part<QRadioButton>(one, "radioBtnSend")->isChecked());
    QCOMPARE(camera.period.writes() + camera.pulseMode.writes(), 2);
    two->SetDevice(nullptr);
    type(part<QtOrvSpinBox>(one, "spBoxPeriod"), "650");
    QCOMPARE(part<QtOrvSpinBox>(*two, "spBoxPeriod")->value(), 640);
    two->SetDevice(&camera.device);
    QCOMPARE(part<QtOrvSpinBox>(*two, "spBoxPeriod")->value(), 650);
    two.reset();
    type(part<QtOrvSpinBox>(one, "spBoxPeriod"), "660");
    QCOMPARE(camera.period.writes(), 3);
}

void TestFeatureDialogs::readsOnce()
{
    CountingCamera camera;
    const auto reads = [&] {
        return QVector<int>{
            camera.mode.reads(),      camera.source.reads(), camera.edge.reads(),
            camera.debounce.reads(),  camera.fire.reads(),   camera.granularity.reads(),
            camera.period.reads(),    camera.width.reads(),  camera.pulses.reads(),
            camera.pulseMode.reads(), camera.enable.reads()};
    };
    for (Node *node : std::initializer_list<Node *>{
             &camera.mode, &camera.source, &camera.edge, &camera.debounce, &camera.granularity,
             &camera.period, &camera.width, &camera.pulses, &camera.pulseMode, &camera.enable})
        node->properties().cachingMode = GenApi::NoCache; // each time that one is asked for counts
    QCOMPARE(reads(), QVector<int>(11));
    OrvCamConfigTriggerDialog trigger(&camera.device);
    QCOMPARE(reads(), QVector<int>({1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0}));
    OrvCamConfigPulseDialog pulse(&camera.device);
    const QVector<int> once{1, 1, 1, 1, 0, 1, 1, 1, 1, 1, 1};
    QCOMPARE(reads(), once);
    trigger.show();
    pulse.show();
    QVERIFY(QTest::qWaitForWindowExposed(&pulse));
    QTest::qWait(300);
    QCOMPARE(reads(), once);

    // A change, whoever makes it, is shown by one more.
    camera.edge.change(1);
    camera.width.change(30);
    click(pulse, "radioBtnSend");
    type(part<QtOrvSpinBox>(pulse, "spBoxPeriod"), "500");
    QCOMPARE(reads(), QVector<int>({1, 1, 2, 1, 0, 1, 2, 2, 1, 2, 1}));
}

void TestFeatureDialogs::transactions()
{
    SimulatedDevice sim;
    const auto cost = [&](const std::function<void()> &act) {
        const OrvAravis::Transactions before = sim.map->transactions();
        act();
        const OrvAravis::Transactions after = sim.map->transactions();
        return QPair<int, int>(int(after.reads - before.reads), int(after.writes - before.writes));
    };
    using Cost = QPair<int, int>;
    std::unique_ptr<OrvCamConfigTriggerDialog> trigger;
    std::unique_ptr<OrvCamConfigPulseDialog> pulse;
    // A register for each feature that can be read; the command has none, a burst is none now.
    QCOMPARE(cost([&] {
                 trigger.reset(new OrvCamConfigTriggerDialog(&sim.device));
                 trigger->show();
             }),
             Cost(4, 0));
    QCOMPARE(cost([&] {
                 pulse.reset(new OrvCamConfigPulseDialog(&sim.device));
                 pulse->show();
             }),
             Cost(5, 0));
    QCOMPARE(cost([&] { QTest::qWait(300); }), Cost(0, 0));
    QCOMPARE(cost([&] {
                 trigger->SetDevice(&sim.device);
                 pulse->SetDevice(&sim.device);
             }),
             Cost(0, 0));
    // Whether the generator runs is polled by the node map; nothing else follows from it.
    QCOMPARE(cost([&] { sim.map->Poll(200); }), Cost(1, 0));

    const Cost oneWrite(0, 1);
    QCOMPARE(cost([&] { click(*trigger, "chBoxTriggerEnable"); }), oneWrite);
    QCOMPARE(cost([&] { choose(combo(*trigger, "cmBoxTriggerSource"), "Software"); }), oneWrite);
    QCOMPARE(cost([&] { click(*trigger, "pushBtnSoftwareTrigger"); }), oneWrite);
    QCOMPARE(cost([&] { type(part<QtOrvSpinBox>(*pulse, "spBoxPeriod"), "5000"); }), oneWrite);
    QCOMPARE(cost([&] { sim.set("PulseGenWidth", "7"); }), oneWrite);
    QCOMPARE(cost([&] { click(*pulse, "radioBtnSend"); }), Cost(1, 1)); // now there is a number
    QCOMPARE(cost([&] { click(*pulse, "pushBtnPulseEnable"); }), oneWrite);
}

void TestFeatureDialogs::refusals()
{
    CountingCamera camera;
    camera.mode.change(1);
    camera.source.change(1);
    OrvCamConfigTriggerDialog trigger(&camera.device);
    OrvCamConfigPulseDialog pulse(&camera.device);
    trigger.show();
    pulse.show();
    QVERIFY(QTest::qWaitForWindowExposed(&pulse));
    for (MemoryEnumeration *node : {&camera.mode, &camera.source, &camera.edge, &camera.debounce,
                                    &camera.granularity, &camera.pulseMode})
        node->onWrite(refuse);
    for (MemoryInteger *node : {&camera.period, &camera.width, &camera.pulses})
        node->onWrite(refuse);
    camera.fire.onWrite(refuse);
    camera.enable.onWrite(refuse);

    ErrorBoxes boxes;
    const auto one = [&](const char *text) {
        const QStringList seen = std::exchange(boxes.texts, {});
        return seen == QStringList(QLatin1String(text) + "\r\nError Code: -5");
    };
    click(trigger, "pushBtnSoftwareTrigger");
    QVERIFY(one("Error while executing the TriggerSoftware command!"));
    choose(combo(trigger, "cmBoxTriggerEdge"), "Falling");
    QVERIFY(one("Error while setting the TriggerActivation enumeration value!"));
    QCOMPARE(combo(trigger, "cmBoxTriggerEdge")->currentText(), QStringLiteral("Falling"));
    choose(combo(trigger, "cmBoxTriggerSource"), "Line");
    QVERIFY(one("Error while setting the TriggerSource enumeration value!"));
    click(trigger, "chBoxTriggerEnable");
    QVERIFY(one("Error while setting the TriggerMode enumeration value!"));
    click(pulse, "radioBtnSend");
    QVERIFY(one("Error while setting the PulseGenMode enumeration value!"));
    click(pulse, "pushBtnPulseEnable");
    QVERIFY(one("Error while setting the PulseGenEnable boolean value!"));
    type(part<QtOrvSpinBox>(pulse, "spBoxNumPulses"), "12345");
    QVERIFY(one("Error while setting the PulseGenNumPulses integer value!"));

    // The next word of the camera puts all right, and everything works as before.
    for (MemoryEnumeration *node : {&camera.mode, &camera.source, &camera.edge, &camera.pulseMode})
        node->onWrite({}), node->changed();
    camera.pulses.onWrite({});
    camera.pulses.changed();
    QCOMPARE(combo(trigger, "cmBoxTriggerEdge")->currentText(), QStringLiteral("Rising"));
    QVERIFY(part<QRadioButton>(pulse, "radioBtnContinious")->isChecked());
    QCOMPARE(part<QtOrvSpinBox>(pulse, "spBoxNumPulses")->value(), 10);
    choose(combo(trigger, "cmBoxTriggerEdge"), "Falling");
    click(pulse, "radioBtnSend");
    QCOMPARE(camera.edge.GetIntValue(), int64_t(1));
    QCOMPARE(camera.pulseMode.GetIntValue(), int64_t(4));

    // How often a user who holds on writes, and is told that it is refused.
    auto *width = part<QtOrvSpinBox>(pulse, "spBoxWidth");
    const auto hold = [&](QWidget *widget, const QPoint &point, const char *what) {
        const int writes = camera.width.writes();
        boxes.texts.clear();
        QTest::mousePress(widget, Qt::LeftButton, {}, point);
        QTest::qWait(1500);
        QTest::mouseRelease(widget, Qt::LeftButton, {}, point);
        const QPair<int, int> seen(camera.width.writes() - writes, boxes.texts.size());
        qInfo("%s held for 1.5 s: %d writes, %d boxes", what, seen.first, seen.second);
        return seen;
    };
    const auto drag = [&](const char *what) {
        const int writes = camera.width.writes();
        boxes.texts.clear();
        QTest::mouseClick(width->toolButton(), Qt::LeftButton);
        QSlider *slider = width->slider()->slider();
        if (!slider->isVisible())
            qFatal("The slider does not open");
        const QPoint from = handleOf(slider);
        dragBy(slider, from, QPoint(1, 0), 40);
        QTest::mouseRelease(slider, Qt::LeftButton, {}, from + QPoint(40, 0));
        QTest::keyClick(slider, Qt::Key_Escape);
        QTest::qWait(1); // a refusal lets go of the widget once more afterwards
        const QPair<int, int> seen(camera.width.writes() - writes, boxes.texts.size());
        qInfo("%s of 40 moves: %d writes, %d boxes", what, seen.first, seen.second);
        return seen;
    };
    using Seen = QPair<int, int>;
    const QPoint upButton(width->spinBox()->width() - 5, 5);
    QCOMPARE(hold(width->spinBox(), upButton, "Refused spin button"), Seen(1, 1));
    camera.width.changed();
    QCOMPARE(drag("Refused drag"), Seen(1, 1));
    camera.width.onWrite({});
    camera.width.changed();
    const Seen held = hold(width->spinBox(), upButton, "Spin button");
    QVERIFY(held.first > 3 && held.second == 0);
    QCOMPARE(drag("Drag"), Seen(1, 0));
    QVERIFY(pulse.isVisible() && width->isEnabled());
}

QTEST_MAIN(TestFeatureDialogs)
#include "tst_featuredialogs.moc"

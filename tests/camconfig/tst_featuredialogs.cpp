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

QComboBox *combo(const QWidget &dialog, const char *name)
{
    return part<QComboBox>(dialog, name);
}

void click(const QWidget &dialog, const char *name)
{
    ::click(part(dialog, name));
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
    void triggerRules();
    void pulseForm();
    void pulseDerivedValues();
    void pulseButton();
    void pulseAccess();
    void missingFeatures_data() { dialogs(); }
    void missingFeatures();
    void closing_data() { dialogs(); }
    void closing();
    void fromInside();
    void transactions();

private:
    void dialogs();
};

void TestFeatureDialogs::dialogs()
{
    QTest::addColumn<MakeDialog>("make");
    QTest::newRow("trigger") << maker<OrvCamConfigTriggerDialog>();
    QTest::newRow("pulse") << maker<OrvCamConfigPulseDialog>();
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

QTEST_MAIN(TestFeatureDialogs)
#include "tst_featuredialogs.moc"

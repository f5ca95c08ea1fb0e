// SPDX-License-Identifier: MIT
#include "camconfigtestsupport.h"

#include <memorynodemap.h>
#include <orvcamconfigpulsedialog.h>
#include <orvcamconfigtriggerdialog.h>
#include <qtorvslider.h>
#include <qtorvspinbox.h>
#include <qtorvspinboxval.h>

using namespace OrvGenApi;
using namespace OrvGui;

namespace {

/// A camera that counts reads and writes per feature and can be made to fail.
struct CountingCamera
{
    CountingCamera() { pulseMode.change(7); }

    MemoryInteger &add(const char *name, int64_t value)
    {
        MemoryInteger &node = map.addInteger(name, value);
        node.setLimits(0, 10000000);
        return node;
    }

    MemoryNodeMap map;
    MemoryEnumeration &mode = map.addEnumeration("TriggerMode", {{"Off", 0}, {"On", 1}});
    MemoryEnumeration &source =
        map.addEnumeration("TriggerSource", {{"Line", 0}, {"Software", 1}, {"software", 2}});
    MemoryEnumeration &edge =
        map.addEnumeration("TriggerActivation", {{"Rising", 0}, {"Falling", 1}});
    MemoryEnumeration &debounce = map.addEnumeration("TriggerDebounce", {{"None", 0}, {"Long", 1}});
    MemoryCommand &fire = map.addCommand("TriggerSoftware");
    MemoryEnumeration &granularity =
        map.addEnumeration("PulseGenGranularity", {{"Us1", 0}, {"Ms1", 3}});
    MemoryInteger &period = add("PulseGenPeriod", 1000);
    MemoryInteger &width = add("PulseGenWidth", 200);
    MemoryInteger &pulses = add("PulseGenNumPulses", 10);
    MemoryEnumeration &pulseMode =
        map.addEnumeration("PulseGenMode", {{"Endlos", 7}, {"Gezählt", 4}});
    MemoryBoolean &enable = map.addBoolean("PulseGenEnable");
    NodeMapDevice device{map};
};

QComboBox *combo(const QWidget &dialog, const char *name)
{
    return part<QComboBox>(dialog, name);
}

void click(const QWidget &dialog, const char *name)
{
    ::click(part(dialog, name));
}

/// Opens the list and clicks on the entry.
void choose(QComboBox *box, const QString &text)
{
    const int row = box->findText(text);
    QVERIFY2(row >= 0, qPrintable(text));
    QTest::mouseClick(box, Qt::LeftButton);
    const QModelIndex item = box->model()->index(row, 0);
    QVERIFY(box->view()->isVisible());
    QTest::qWait(QApplication::doubleClickInterval() + 10); // an earlier click only opens the list
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
    const auto pixmap = part<QLabel>(dialog, label)->property("pixmap").value<QPixmap>();
    return !pixmap.isNull() && pixmap.toImage() == QPixmap(QLatin1String(resource)).toImage();
}

} // namespace

class TestFeatureDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setDoubleClickInterval(20); }
    void triggerRules();
    void pulseDerivedValues();
    void pulseButton();
    void pulseAccess();
    void missingFeatures();
};

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
        QCOMPARE(sim.get("TriggerMode"), QStringLiteral("On"));
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

    // The command of this camera is always available, so the dialog's rule applies, by source name.
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

    // A notification enables writable features, regardless of the check box.
    camera.mode.setAccessMode(GenApi::RW);
    camera.mode.change(0);
    QVERIFY(state(dialog).contains("cmBoxTriggerDebounce"));
    camera.debounce.changed();
    QVERIFY(!state(dialog).contains("cmBoxTriggerDebounce"));
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
    camera.granularity.change(3); // not part of the formula
    QCOMPARE(shown(), QStringList({"-1497", "333333.333333"}));
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

    // A change by the camera itself toggles the button, but not its text and lamp.
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
    QCOMPARE(state(), count); // a single pulse has no number
    sim.set("PulseGenMode", "Burst");
    QCOMPARE(state(), QStringList());
    click(dialog, "pushBtnPulseEnable");
    const QStringList whileRunning =
        list({"cmBoxGranularity", "radioBtnContinious", "radioBtnSend", "spBoxNumPulses"});
    QCOMPARE(state(), whileRunning);

    // The burst ends by itself; polling notices it.
    sim.camera.advance(60);
    sim.map->Poll(200);
    QVERIFY(!part<QPushButton>(dialog, "pushBtnPulseEnable")->isChecked());
    QCOMPARE(state(), QStringList());
    click(dialog, "radioBtnContinious");
    QCOMPARE(state(), count);
}

void TestFeatureDialogs::missingFeatures()
{
    MemoryNodeMap nothing;
    nothing.addInteger("TriggerMode"); // has another type
    NodeMapDevice empty(nothing);
    CountingCamera full;
    full.mode.change(1);
    full.source.change(1);
    full.enable.change(true);
    ErrorBoxes boxes;
    OrvCamConfigTriggerDialog trigger(&full.device);
    OrvCamConfigPulseDialog pulse(&full.device);
    for (OrvCamConfigDialog *dialog :
         {static_cast<OrvCamConfigDialog *>(&trigger), static_cast<OrvCamConfigDialog *>(&pulse)}) {
        dialog->show();
        dialog->SetDevice(&empty);
        QVERIFY(dialog->isEnabled());
    }
    // The state of the former camera has no effect.
    QCOMPARE(disabled(trigger, triggerNames), list(triggerNames));
    QCOMPARE(disabled(pulse, pulseNames), list(pulseNames));
    QVERIFY(shows(pulse, "lblPulseEnable", ":/icons/res/redball.ico"));
    QCOMPARE(part<QPushButton>(pulse, "pushBtnPulseEnable")->text(), QStringLiteral("Start"));
    QCOMPARE(part<QLineEdit>(pulse, "lineEditFreq")->text(), QStringLiteral("0.000000"));
    QCOMPARE(part<QLineEdit>(pulse, "lineEditDelay")->text(), QStringLiteral("0"));

    // The dialog's own rule also enables boxes whose features are missing.
    MemoryNodeMap little;
    little.addEnumeration("TriggerMode", {{"Off", 0}, {"On", 1}}).change(1);
    NodeMapDevice simple(little);
    trigger.SetDevice(&full.device);
    trigger.SetDevice(&simple);
    QCOMPARE(disabled(trigger, triggerNames), list({"pushBtnSoftwareTrigger"}));
    for (const QComboBox *box : trigger.findChildren<QComboBox *>())
        QCOMPARE(box->count(), 0);
    QCOMPARE(boxes.texts, QStringList());
}

QTEST_MAIN(TestFeatureDialogs)
#include "tst_featuredialogs.moc"

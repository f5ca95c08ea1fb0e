// SPDX-License-Identifier: MIT
#include "camconfigtestsupport.h"

#include <history/historycaption.h>
#include <history/historychart.h>
#include <history/historywindow.h>
#include <history/samplering.h>
#include <journal/featurejournal.h>
#include <journal/undoactions.h>
#include <memorynodemap.h>
#include <orvcamconfig.h>
#include <orvcamconfigcolordialog.h>
#include <orvcamconfigframeabdialog.h>
#include <qtorvslider.h>
#include <qtorvspinbox.h>

#include <cmath>

using namespace OrvGui;
using OrvGenApi::MemoryEnumeration;
using OrvGenApi::MemoryInteger;
using OrvGenApi::MemoryNodeMap;

namespace {

/// A feature of each kind, and a gain for each colour of each tap.
struct Map : MemoryNodeMap
{
    Map()
    {
        gain.bind([this] { return gains[place()]; },
                  [this](const int64_t &value) { gains[place()] = value; });
        color.select(gain);
        tap.select(color);
        for (auto *value : std::initializer_list<GenApi::IValue *>{&exposure, &real, &flag, &mode,
                                                                   &text, &color, &tap, &gain})
            value->ToString();
    }
    size_t place() { return size_t(tap.GetIntValue() * 2 + color.GetIntValue()); }

    /// Writes like a window. Returns false if the camera refuses the value.
    bool write(const FeatureJournal::Pointer &journal, const char *feature, const QVariant &value)
    {
        return FeatureJournal::write(journal, feature, QVariant(), value, [=] {
            try {
                GenApi::CValuePtr(GetNode(feature))->FromString(value.toByteArray().constData());
                return true;
            } catch (const GenICam::GenericException &) {
                return false;
            }
        });
    }
    QString get(const char *feature)
    {
        return GenApi::CValuePtr(GetNode(feature))->ToString().c_str();
    }

    std::array<int64_t, 4> gains{1, 2, 3, 4};
    MemoryInteger &exposure = addInteger("ExposureTime", 5000);
    OrvGenApi::MemoryFloat &real = addFloat("Gamma", 0.1);
    OrvGenApi::MemoryBoolean &flag = addBoolean("Reverse");
    MemoryEnumeration &mode = addEnumeration("Mode", {{"Off", 0}, {"On", 1}});
    OrvGenApi::MemoryString &text = addString("UserName", "a");
    MemoryEnumeration &color = addEnumeration("GainSelector", {{"Red", 0}, {"Blue", 1}});
    MemoryEnumeration &tap = addEnumeration("TapSelector", {{"Left", 0}, {"Right", 1}});
    MemoryInteger &gain = addInteger("Gain");
};

void show(QWidget &window)
{
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("The window does not come up");
}

const auto undoKeys = [](QWidget *widget) {
    QTest::keyClick(widget, Qt::Key_Z, Qt::ControlModifier);
};
const auto redoKeys = [](QWidget *widget) {
    QTest::keyClick(widget, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
};

/// Processes events until all writes of a gesture are recorded.
void processPending()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

} // namespace

/// Writes of all windows can be undone, and values of the last ten minutes are kept.
class TestFeatureJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void undoOfEachType_data();
    void undoOfEachType();
    void undoWithSelectors();
    void refusedUndo();
    void nodeMapIsDestroyed();
    void gesturesAreOneStep();
    void undoInFrameDialog();
    void undoWhileTyping();
    void windowsShareOneJournal();
    void sampleRing();
    void historyChart();
};

void TestFeatureJournal::undoOfEachType_data()
{
    QTest::addColumn<QByteArray>("feature");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("step");
    const QString arrow(QChar(0x2192));
    QTest::newRow("integer") << QByteArray("ExposureTime") << QVariant(8000) << "5000"
                             << "ExposureTime 5000 " + arrow + " 8000";
    QTest::newRow("float") << QByteArray("Gamma") << QVariant(0.30000000000000004) << "0.1"
                           << "Gamma 0.1 " + arrow + " 0.30000000000000004";
    QTest::newRow("boolean") << QByteArray("Reverse") << QVariant(true) << "0"
                             << "Reverse false " + arrow + " true";
    QTest::newRow("entry") << QByteArray("Mode") << QVariant("On") << "Off"
                           << "Mode Off " + arrow + " On";
    QTest::newRow("text") << QByteArray("UserName") << QVariant("&b\n<i>") << "a"
                          << QString("UserName a %1 &b\uFFFD<i>").arg(arrow);
}

void TestFeatureJournal::undoOfEachType()
{
    QFETCH(QByteArray, feature);
    QFETCH(QVariant, value);
    QFETCH(QString, before);
    QFETCH(QString, step);
    Map map;
    const auto journal = FeatureJournal::of(&map);
    QCOMPARE(journal->undoText(), QString("Undo"));
    QVERIFY(map.write(journal, feature.constData(), value));
    const QString after = map.get(feature.constData());
    QVERIFY(after != before);
    QVERIFY(map.write(journal, feature.constData(), value)); // no change, so no step
    QCOMPARE(journal->undoText(), "Undo " + step);
    QVERIFY(!journal->canRedo());
    for (int i = 0; i < 2; ++i) {
        QVERIFY(journal->undo());
        QCOMPARE(map.get(feature.constData()), before);
        QVERIFY(!journal->canUndo());
        QCOMPARE(journal->redoText(), "Redo " + step);
        QVERIFY(journal->redo());
        QCOMPARE(map.get(feature.constData()), after);
    }
    journal->undo();
    map.get("ExposureTime");
    map.write(journal, "ExposureTime", 1);
    QVERIFY(!journal->canRedo());
}

void TestFeatureJournal::undoWithSelectors()
{
    Map map;
    const auto journal = FeatureJournal::of(&map);
    // Undo at each of the four selector positions, of a write at each of them.
    for (int from = 0; from < 4; ++from) {
        for (int to = 0; to < 4; ++to) {
            const auto goTo = [&](int place) {
                map.write(journal, "TapSelector", place / 2 ? "Right" : "Left");
                map.write(journal, "GainSelector", place % 2 ? "Blue" : "Red");
                map.get("Gain");
            };
            const auto all = map.gains;
            goTo(from);
            QVERIFY(map.write(journal, "Gain", 70));
            QVERIFY(journal->undoText().contains(
                QString("Gain[%1, %2] ")
                    .arg(from / 2 ? "Right" : "Left", from % 2 ? "Blue" : "Red")));
            goTo(to);
            const int writes = map.gain.writes();
            const int moves = map.tap.writes() + map.color.writes();
            QVERIFY(journal->undo());
            QCOMPARE(map.gains, all);
            QCOMPARE(int(map.place()), to);
            QCOMPARE(map.gain.writes(), writes + 1);
            const int apart = (from / 2 != to / 2) + (from % 2 != to % 2);
            QCOMPARE(map.tap.writes() + map.color.writes(), moves + 2 * apart);
            QVERIFY(journal->redo());
            QCOMPARE(map.gains[size_t(from)], 70);
            QCOMPARE(int(map.place()), to);
            QVERIFY(journal->undo());
            QVERIFY(!journal->canUndo()); // moving a selector is not recorded
        }
    }

    // Moving the selectors temporarily sends no notification; the undone write does.
    map.gain.GetValue();
    map.write(journal, "Gain", 9);
    map.write(journal, "GainSelector", "Red");
    MemoryInteger &sum = map.addInteger("Sum");
    sum.dependsOn(map.gain);
    int calls = 0;
    QVector<int> places;
    const auto callback = GenApi::Register(&sum, [&](GenApi::INode *) {
        ++calls;
        places << int(map.place());
    });
    journal->undo();
    QVERIFY(calls > 0);
    QCOMPARE(places.last(), int(map.place()));
    sum.DeregisterCallback(callback);

    // A value that is not cached is not read. A write that cannot be undone is not recorded.
    const int reads = map.color.reads() + map.gain.reads();
    map.color.changed();
    FeatureJournal::write(journal, "Gain", 1, 2, [] { return true; });
    QCOMPARE(map.color.reads() + map.gain.reads(), reads);
    QVERIFY(!journal->canUndo());
}

void TestFeatureJournal::refusedUndo()
{
    Map map;
    const auto journal = FeatureJournal::of(&map);
    map.exposure.setLimits(0, 9000);
    map.exposure.GetValue();
    QVERIFY(!map.write(journal, "ExposureTime", 9001));
    QVERIFY(!journal->canUndo());

    // A group is undone completely or not at all.
    {
        const FeatureJournal::Group group(journal);
        QVERIFY(map.write(journal, "Reverse", "1") && map.write(journal, "ExposureTime", "6000") &&
                map.write(journal, "Mode", "On"));
    }
    QCOMPARE(journal->undoText(), QString("Undo Reverse and 2 more"));
    map.exposure.onWrite(throwRefusal);
    QString reason;
    QVERIFY(!journal->undo(&reason));
    QVERIFY2(reason.contains("no"), qPrintable(reason));
    QCOMPARE(map.get("Mode") + map.get("ExposureTime") + map.get("Reverse"), QString("On60001"));
    map.exposure.onWrite({});
    QVERIFY(journal->undo());
    QCOMPARE(map.get("Mode") + map.get("ExposureTime") + map.get("Reverse"), QString("Off50000"));

    // If a selector cannot be moved, undo writes nothing, and the step is kept.
    map.get("Gain");
    map.write(journal, "Gain", 50);
    map.write(journal, "TapSelector", "Right");
    map.tap.onWrite(throwRefusal);
    const auto all = map.gains;
    QVERIFY(!journal->undo());
    QCOMPARE(map.gains, all);
    map.tap.onWrite({});
    map.gain.onWrite(throwRefusal);
    QVERIFY(!journal->undo());
    QCOMPARE(map.get("TapSelector"), QString("Right"));
    map.gain.onWrite({});
    QVERIFY(journal->undo());
    QCOMPARE(map.gains[0], 1);

    // A step that is refused permanently does not block the earlier steps.
    QWidget window;
    UndoActions actions(&window);
    actions.setJournal(journal);
    map.write(journal, "Mode", "On");
    map.write(journal, "ExposureTime", 6000);
    map.exposure.onWrite(throwRefusal);
    show(window);
    actions.undo()->trigger();
    const QPointer<QMessageBox> box(window.findChild<QMessageBox *>());
    QVERIFY(box && journal->undoText().contains("ExposureTime"));
    QVERIFY2(box->text().startsWith("The camera refuses this step: Undo ExposureTime"),
             qPrintable(box->text()));
    for (QAbstractButton *button : box->buttons()) {
        if (box->buttonRole(button) == QMessageBox::DestructiveRole)
            button->click();
    }
    QTRY_VERIFY(!box);
    actions.undo()->trigger();
    QCOMPARE(map.get("Mode"), QString("Off"));
    QVERIFY(!journal->canUndo());
}

void TestFeatureJournal::nodeMapIsDestroyed()
{
    auto map = std::make_unique<Map>();
    auto journal = FeatureJournal::of(map.get());
    QCOMPARE(FeatureJournal::of(map.get()), journal);
    QVERIFY(!FeatureJournal::of(nullptr));
    UndoActions actions(new QWidget);
    const std::unique_ptr<QObject> window(actions.parent());
    actions.setParent(nullptr);
    actions.setJournal(journal);
    map->write(journal, "ExposureTime", 1);
    QVERIFY(actions.undo()->isEnabled());
    GenApi::INode *const node = map->GetNode("ExposureTime");
    const FeatureJournal::State before = journal->known(node);

    map.reset();
    QVERIFY(!journal->canUndo());
    QVERIFY(journal->undo());
    journal->record(node, before, 3);
    QVERIFY(!FeatureJournal::write(journal, "ExposureTime", 1, 2, [] { return false; }));
    actions.undo()->trigger();
    QVERIFY(!journal->canUndo());
    QCOMPARE(journal->undoText(), QString("Undo"));

    // The journal is deleted with its last user.
    Map other;
    journal = FeatureJournal::of(&other);
    other.write(journal, "ExposureTime", 1);
    actions.setJournal(nullptr);
    journal = FeatureJournal::of(&other);
    QVERIFY(journal->canUndo());
    journal.reset();
    QVERIFY(!FeatureJournal::of(&other)->canUndo());
}

/// A drag, a held button and a held key are one step each; each click is a step.
void TestFeatureJournal::gesturesAreOneStep()
{
    SimulatedDevice camera;
    OrvCamConfigColorDialog dialog(&camera.device);
    show(dialog);
    const auto journal = FeatureJournal::of(camera.map.get());
    auto *red = part<QtOrvSpinBox>(dialog, "spBoxRed");
    auto *box = red->findChild<QSpinBox *>();
    const int first = red->value();
    const auto value = [&] { return camera.get("RedCoefficient").toInt(); };
    const auto undoAll = [&] {
        int steps = 0;
        for (; journal->canUndo(); ++steps)
            journal->undo();
        return steps;
    };
    processPending();

    QTest::mouseClick(part(dialog, "pushBtnRedUnity"), Qt::LeftButton);
    processPending();
    box->setFocus();
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(box, Qt::Key_Up);
        processPending();
    }
    QCOMPARE(value(), 259);
    QCOMPARE(undoAll(), first == 256 ? 3 : 4);
    QCOMPARE(value(), first);
    QCOMPARE(red->value(), first);

    const auto key = [&](QEvent::Type type, bool isRepeated) {
        QKeyEvent event(type, Qt::Key_Up, {}, QString(), isRepeated);
        QApplication::sendEvent(box, &event);
        processPending();
    };
    key(QEvent::KeyPress, false);
    for (int i = 0; i < 20; ++i)
        key(QEvent::KeyPress, true);
    key(QEvent::KeyRelease, false);
    QVERIFY(value() > first + 2);
    QCOMPARE(undoAll(), 1);
    QCOMPARE(value(), first);

    auto *slider = red->findChild<QSlider *>();
    const QPoint from = handleOf(slider);
    dragBy(slider, from, slider->orientation() == Qt::Vertical ? QPoint(0, 3) : QPoint(3, 0), 5);
    QTest::mouseRelease(slider, Qt::LeftButton);
    processPending();
    QVERIFY(value() != first);
    const quint64 writes = camera.writes();
    QCOMPARE(undoAll(), 1);
    QCOMPARE(value(), first);
    QCOMPARE(camera.writes(), writes + 1);
}

/// The writes of the frame dialog, both its own and those of the mapper, for each frame.
void TestFeatureJournal::undoInFrameDialog()
{
    SimulatedDevice camera;
    camera.set("FrameMode", "DualVideo");
    camera.set("FrameAB_Selector", "FrameA");
    OrvCamConfigFrameABDialog dialog(&camera.device);
    show(dialog);
    const auto journal = FeatureJournal::of(camera.map.get());
    const auto get = [&](const char *name) { return part(dialog, name); };
    const QStringList features{"Frame_OffsetX",
                               "Frame_OffsetY",
                               "Frame_Width",
                               "Frame_Height",
                               "Frame_ExposureLines",
                               "Frame_ExposureClocks",
                               "Frame_DigitalCourseGain",
                               "Frame_DigitalFineGain"};
    const auto state = [&] {
        QStringList values;
        for (const QString &feature : features)
            values << camera.get(feature.toLatin1());
        return values;
    };
    const QStringList before = state();
    QStringList after;
    const QVector<QPair<const char *, const char *>> inputs{
        {"spBoxExpTime", "3210"}, {"spBoxDigitalGain", "3.0"}, {"radioBtnQFHDFrame", nullptr}};
    for (const auto &input : inputs) {
        if (input.second)
            type(get(input.first), input.second);
        else
            click(get(input.first));
        processPending();
        QVERIFY2(journal->canUndo(), input.first);
        const QString step = journal->undoText();
        after = state();
        QVERIFY(after != before);
        const quint64 writes = camera.writes();
        QVERIFY(journal->undo());
        processPending();
        QCOMPARE(state(), before);
        QVERIFY(!journal->canUndo());
        QVERIFY(camera.writes() - writes <= 4);
        QVERIFY(journal->redo());
        processPending();
        QCOMPARE(state(), after);
        QCOMPARE(journal->undoText(), step);
        QVERIFY(journal->undo());
        processPending();
    }
}

/// The keys undo typing first; after a commit they undo writes.
void TestFeatureJournal::undoWhileTyping()
{
    SimulatedDevice camera;
    OrvCamConfigColorDialog dialog(&camera.device);
    show(dialog);
    auto *box = part(dialog, "spBoxRed")->findChild<QSpinBox *>();
    const QString first = camera.get("RedCoefficient");
    ::type(box, "300");
    processPending();
    QCOMPARE(camera.get("RedCoefficient"), QString("300"));
    ::type(box, "77", false);
    undoKeys(box);
    QVERIFY(box->text() != "77");
    QCOMPARE(camera.get("RedCoefficient"), QString("300"));
    while (box->text() != "300") {
        const QString text = box->text();
        undoKeys(box);
        QVERIFY(box->text() != text);
    }
    undoKeys(box);
    processPending();
    QCOMPARE(camera.get("RedCoefficient"), first);
    QCOMPARE(box->text(), first);
    undoKeys(box); // nothing left to undo, in the text either
    QCOMPARE(box->text(), first);
    redoKeys(box);
    processPending();
    QCOMPARE(camera.get("RedCoefficient"), QString("300"));
    QCOMPARE(box->text(), QString("300"));
}

/// All windows of a camera share one journal. The captions open the values that the window has
/// read.
void TestFeatureJournal::windowsShareOneJournal()
{
    SimulatedDevice camera;
    OrvCamConfig window(&camera.device);
    show(window);
    auto *undo = part<QMenu>(window, "menuMenu")->actions().value(3);
    QCOMPARE(undo->objectName(), QString("actionUndo"));
    QVERIFY(!undo->isEnabled());
    const auto readsOfATurn = [&] {
        processPending();
        const auto reads = camera.map->transactions().reads;
        QMetaObject::invokeMethod(part<QTimer>(window, "refreshTimer"), "timeout");
        processPending();
        return camera.map->transactions().reads - reads;
    };
    readsOfATurn(); // both frames
    const auto readsWithout = readsOfATurn();
    struct Caption
    {
        const char *label;
        const char *field;
        QString unit;
    };
    for (const Caption &one :
         {Caption{"lblFps", "lineEditFpsFrameA", "fps"},
          Caption{"lblFtm", "lineEditFtmFrameA", QString(QChar(0x3BC)) + "s"},
          Caption{"lblExp", "lineEditExpFrameA", QString(QChar(0x3BC)) + "s"},
          Caption{"lblTmp", "lineEditTemperature", QString(QChar(0xB0)) + "C"}}) {
        auto *caption = part<HistoryCaption>(window, one.label);
        const auto reads = camera.map->transactions().reads;
        if (one.unit == "fps")
            QTest::keyClick(caption, Qt::Key_Space);
        else
            QTest::mouseClick(caption, Qt::LeftButton);
        auto *history =
            qobject_cast<HistoryWindow *>(window.findChildren<HistoryWindow *>().last());
        QVERIFY(history && history->isVisible());
        QTRY_VERIFY((history->activateWindow(), history->isActiveWindow()));
        QVERIFY(history->windowTitle().startsWith(caption->text()));
        QGuiApplication::clipboard()->clear();
        QTest::keyClick(history, Qt::Key_C, Qt::ControlModifier);
        const QString csv = QGuiApplication::clipboard()->text();
        QCOMPARE(csv, history->csv());
        QVERIFY2(csv.section('\n', 0, 0).contains('[' + one.unit + ']'), qPrintable(csv));
        const QString value = part<QLineEdit>(window, one.field)->text();
        QVERIFY2(!value.isEmpty() && csv.contains(',' + value), qPrintable(csv));
        QCOMPARE(camera.map->transactions().reads, reads);
    }
    QCOMPARE(readsOfATurn(), readsWithout);
    window.close();
    for (const HistoryWindow *history : window.findChildren<HistoryWindow *>())
        QVERIFY(!history->isVisible());
}

void TestFeatureJournal::sampleRing()
{
    SampleRing ring;
    QCOMPARE(ring.summary().count, 0);
    QCOMPARE(ring.nearest(5), -1);
    const qint64 start = 1000000;
    for (int i = 0; i < 2000; ++i)
        ring.add(start + i * 1000, i == 1990 ? std::nan("") : i);
    QCOMPARE(ring.size(), 601);
    QCOMPARE(ring.at(0).value, 1399.0);
    QCOMPARE(ring.summary().count, 600);
    QCOMPARE(ring.summary().min, 1399.0);
    QCOMPARE(ring.summary().max, 1999.0);
    QCOMPARE(ring.summary().mean, (601 * 1699.0 - 1990) / 600);
    QCOMPARE(ring.at(ring.nearest(start + 1990 * 1000 + 10)).value, 1991.0);
    QVERIFY(ring.isAfterGap(0) && !ring.isAfterGap(1) && ring.isAfterGap(592));
    ring.add(start + 2004 * 1000, 7);
    QVERIFY(ring.isAfterGap(ring.size() - 1));
    for (int i = 0; i < 5000; ++i)
        ring.add(start + 2004 * 1000 + i, i); // more than the capacity
    QCOMPARE(ring.size(), int(SampleRing::capacity));
    QCOMPARE(ring.summary().max, 4999.0);
    ring.add(start, 1); // the clock was set back
    QCOMPARE(ring.size(), 1);
}

/// The chart has lines between values and gaps for disconnections; the keys select a value.
void TestFeatureJournal::historyChart()
{
    SampleRing ring;
    const qint64 end = 1700000000000;
    for (int i = 0; i < 600; ++i) {
        if (i < 200 || i > 400)
            ring.add(end - (600 - i) * 1000, 25 + (i % 2));
    }
    HistoryChart chart;
    chart.setUnit("fps", 2);
    chart.setSeries({{QString(), &ring}});
    chart.setEnd(end);
    chart.resize(700, 300);
    QPalette colors = chart.palette();
    colors.setColor(QPalette::Highlight, Qt::red);
    colors.setColor(QPalette::Base, Qt::white);
    chart.setPalette(colors);
    const QImage image = chart.grab().toImage();
    const auto redIn = [&](double from, double to) {
        int count = 0;
        for (int x = int(from * image.width()); x < int(to * image.width()); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                const QColor color = image.pixelColor(x, y);
                count += color.red() > 200 && color.green() < 120 ? 1 : 0;
            }
        }
        return count;
    };
    QVERIFY(redIn(0.1, 0.35) > 100 && redIn(0.75, 0.95) > 100);
    QCOMPARE(redIn(0.45, 0.6), 0);

    QSignalSpy marked(&chart, &HistoryChart::marked);
    QTest::keyClick(&chart, Qt::Key_End);
    QVERIFY(marked.last().first().toString().endsWith("26.00 fps"));
    QTest::keyClick(&chart, Qt::Key_Left);
    QVERIFY(marked.last().first().toString().endsWith("25.00 fps"));
    QTest::keyClick(&chart, Qt::Key_Home);
    QTest::keyClick(&chart, Qt::Key_Left);
    QTest::keyClick(&chart, Qt::Key_Right);
    QVERIFY(marked.last().first().toString().endsWith("26.00 fps"));
}

QTEST_MAIN(TestFeatureJournal)
#include "tst_featurejournal.moc"

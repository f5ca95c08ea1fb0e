// SPDX-License-Identifier: MIT
#include "camconfigtestsupport.h"
#include "fakecameras.h"
#include "modalvisitor.h"
#include "pickerparts.h"
#include "pluggablecamera.h"

#include <description/nodemap.h>
#include <orvcamconfig.h>
#include <orvcamconfigdialog.h>
#include <orvcameraguiapi.h>
#include <orvgenparamtreeview.h>
#include <qtorvspinbox.h>
#include <qtorvspinboxval.h>

#include <random>

using OrvGui::OrvCamConfig;

namespace {

/// The cameras on the first interface of the picker.
struct OfferedCameras
{
    OfferedCameras() { system.interfaces.entries = {&interface}; }

    PluggableCamera &camera(int i) { return i == 0 ? first : second; }
    /// Systems that were handed out and not released.
    int systems() const { return opened - system.released; }

    PluggableCamera first{"First"};
    PluggableCamera second{"Second"};
    FakeInterface interface {
        "Cable"
    };
    FakeCamera &firstInfo = interface.add("First");
    FakeCamera &secondInfo = interface.add("Second");
    int opened = 0; ///< how often the system was handed out
    const std::thread::id homeThread = std::this_thread::get_id();
    FakeSystem system;
};

OfferedCameras *offeredCameras = nullptr;

} // namespace

// Replacements for the functions of the camera access library.

OrvCamSystem *OrvCam_GetSystem(void)
{
    if (!offeredCameras)
        return nullptr;
    ++offeredCameras->opened;
    return &offeredCameras->system;
}

OrvCamDevice *OrvCam_CreateDevice(OrvCamDeviceInfo *info, int32_t *error, int32_t accessMode)
{
    if (error || accessMode != OrvCam::AccessControl)
        qFatal("Not how a device is to be created");
    return CountedDevice::open(offeredCameras->camera(info == &offeredCameras->firstInfo ? 0 : 1),
                               *info, offeredCameras->homeThread);
}

namespace {

template<class Widget = QLineEdit>
Widget &child(const QWidget &window, const char *name)
{
    return *part<Widget>(window, name);
}

QString textOf(const QWidget &window, const char *lineEdit)
{
    return child<QLineEdit>(window, lineEdit).text();
}

QAction &action(const QWidget &window, const char *name)
{
    return *part<QAction>(window, name);
}

QString statusOf(const QWidget &window)
{
    return child<QLabel>(window, "lblStatusText").text();
}

/// Triggers the window's timer of one second.
void tick(const QWidget &window)
{
    QMetaObject::invokeMethod(window.findChild<QTimer *>("refreshTimer"), "timeout");
}

/// The numbers of a column: size, frames per second, frame time, exposure.
QString columnOf(const QWidget &window, char frame)
{
    QStringList texts;
    for (const char *field : {"Size", "Fps", "Ftm", "Exp"})
        texts << textOf(window, qPrintable(QString("lineEdit%1Frame%2").arg(field).arg(frame)));
    return texts.join(' ');
}

bool isDimmed(const QWidget &window, char frame)
{
    for (const char *field : {"lineEditSize", "lineEditFps", "lineEditFtm", "lineEditExp", "lbl"}) {
        if (child<QWidget>(window, qPrintable(QString("%1Frame%2").arg(field).arg(frame)))
                .isEnabled())
            return false;
    }
    return true;
}

/// The expected numbers of the frame that the camera's selector addresses.
QString selectedColumn(OrvGenParam::Array &array)
{
    const auto number = [&](const char *name) { return array.GetIntegerValue(name); };
    return QString("%1x%2 %3 %4 %5")
        .arg(number("Width"))
        .arg(number("Height"))
        .arg(1e6 / double(number("CurrentFrameTime")), 0, 'f', 2)
        .arg(number("CurrentFrameTime"))
        .arg(number("CurrentExposureTime"));
}

/// The simulated camera, opened without a system.
struct Simulation : SimulatedDevice
{
    void select(const char *frame) { set("FrameAB_Selector", frame); }

    OrvGenParam::Array &array = *device.array;
};

/// Picks the camera in that row of the picker; -1 cancels.
ModalVisitor::Action picking(int row)
{
    return [row](QDialog &picker) {
        QCOMPARE(picker.windowTitle(), QString("Select a device"));
        if (row < 0)
            return picker.reject();
        QTreeView &tree = *cameraTree(picker);
        tree.setCurrentIndex(tree.model()->index(row, 0, tree.model()->index(0, 0)));
        button(picker, "OK")->click();
    };
}

/// Records which windows are shown.
class ShownWindows : public QObject
{
public:
    ShownWindows() { qApp->installEventFilter(this); }
    QStringList names;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        auto *widget = qobject_cast<QWidget *>(object);
        if (event->type() == QEvent::Show && widget && widget->isWindow())
            names << QString::fromLatin1(widget->metaObject()->className());
        return false;
    }
};

/// A main window, two cameras and a host, with their invariants.
class Scenario
{
public:
    Scenario()
    {
        offeredCameras = &offered;
        ModalVisitor user({picking(-1)});
        window.reset(new OrvCamConfig(nullptr));
        QObject::connect(window.get(), &OrvCamConfig::deviceChanged,
                         [this](OrvCam::Device *device) { signalled = device; });
        window->show();
    }
    ~Scenario()
    {
        window.reset();
        for (OrvCam::Device *host : hosts) {
            if (host)
                host->Release();
        }
        offeredCameras = nullptr;
    }

    /// Returns false if the action is not possible in the current state.
    bool perform(const QString &word)
    {
        const int i = word.endsWith('x') || word.size() < 2 ? -1 : word[1].digitValue();
        switch (word[0].toLatin1()) {
        case 'c':
            connectTo(i);
            return true;
        case 'h':
            return setByHost(i);
        case 'd':
            current = -1;
            action(*window, "actionDisconnect").trigger();
            return true;
        case 'r':
            return releaseByHost(i);
        default:
            offered.camera(i).isPlugged = word[0] == 'p';
            return true;
        }
    }

    void check()
    {
        for (int i = 0; i < 2; ++i) {
            const auto &counts = CountedDevice::counts(offered.camera(i));
            QCOMPARE(counts.open, (hosts[i] ? 1 : 0) + (current == i && isOwn ? 1 : 0));
            QCOMPARE(counts.events, current == i ? 2 : 0);
        }
        const bool isConnected = current >= 0 && offered.camera(current).isPlugged;
        const QString status = isConnected ? offered.camera(current).name : "Disconnected";
        QTRY_VERIFY((tick(*window), statusOf(*window) == status));
        QCOMPARE(window->device() != nullptr, isConnected);
        QCOMPARE(signalled, window->device());
        QCOMPARE(textOf(*window, "lineEditTemperature"), QString(isConnected ? "40" : ""));
        for (QDialog *dialog : window->findChildren<OrvGui::OrvCamConfigDialog *>())
            QCOMPARE(dialog->isEnabled(), isConnected);
    }

    void end()
    {
        window.reset();
        QCOMPARE(signalled, static_cast<OrvCam::Device *>(nullptr));
        QCOMPARE(offered.systems(), 0);
        for (int i = 0; i < 2; ++i)
            QCOMPARE(CountedDevice::counts(offered.camera(i)).open, hosts[i] ? 1 : 0);
    }

    OfferedCameras offered;
    std::unique_ptr<OrvCamConfig> window;
    OrvCam::Device *hosts[2] = {};

private:
    void connectTo(int i)
    {
        current = i >= 0 && offered.camera(i).isPlugged && !hosts[i] ? i : -1;
        isOwn = true;
        ModalVisitor user({picking(i)});
        action(*window, "actionConnect").trigger();
        for (QMessageBox *box : window->findChildren<QMessageBox *>())
            box->done(0);
        QVERIFY(user.isDone());
    }

    bool setByHost(int i)
    {
        if (i >= 0 && !hosts[i]) {
            hosts[i] = CountedDevice::open(offered.camera(i),
                                           i == 0 ? offered.firstInfo : offered.secondInfo);
            if (!hosts[i])
                return false;
        }
        current = i;
        isOwn = false;
        window->SetDevice(i >= 0 ? hosts[i] : nullptr);
        return true;
    }

    bool releaseByHost(int i)
    {
        if (!hosts[i] || current == i)
            return false;
        std::exchange(hosts[i], nullptr)->Release();
        return true;
    }

    int current = -1; ///< the window's camera, even while it is unplugged
    bool isOwn = false;
    OrvCam::Device *signalled = nullptr;
};

} // namespace

class TestOrvCamConfigMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void showsBothFrames();
    void keepsPendingInput();
    void lockedSelector();
    void cameraWithOneFrame();
    void information();
    void buttonsAndView();
    void releasesOnlyItsOwnDevices_data();
    void releasesOnlyItsOwnDevices();
    void pickedInTheConstructor();
    void cameraThatCannotBeOpened();
    void destroyedWhilePicking();
    void twoWindowsOnOneCamera();
    void showFunctions();
};

void TestOrvCamConfigMainWindow::showsBothFrames()
{
    Simulation simulation;
    QVERIFY(simulation.map);
    simulation.set("FrameMode", "DualVideo");
    simulation.select("FrameB");
    simulation.set("Frame_Width", "1024");
    QString b = selectedColumn(simulation.array);
    simulation.select("FrameA");
    QString a = selectedColumn(simulation.array);
    QVERIFY(a != b);
    OrvCamConfig window(&simulation.device);
    window.show();
    const auto shows = [&] { return columnOf(window, 'A') == a && columnOf(window, 'B') == b; };
    QVERIFY(shows());
    QCOMPARE(simulation.get("FrameAB_Selector"), QString("FrameA"));
    QVERIFY(!isDimmed(window, 'A') && !isDimmed(window, 'B'));

    // The window updates within a second, but only the selected frame.
    simulation.set("Frame_ExposureLines", "77");
    a = selectedColumn(simulation.array);
    QVERIFY(!shows());
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(shows());
    QVERIFY(timer.elapsed() < 1500);
    simulation.select("FrameB");
    simulation.set("Frame_Height", "512");
    b = selectedColumn(simulation.array);
    tick(window);
    QVERIFY(shows());

    // Frame A is output, frame B is selected: neither is shown in the other's column.
    simulation.set("FrameMode", "FrameA");
    simulation.set("Frame_Height", "256");
    tick(window);
    QVERIFY(shows());
    QVERIFY(isDimmed(window, 'B') && !isDimmed(window, 'A'));
    simulation.select("FrameA");
    tick(window);
    a = selectedColumn(simulation.array);
    QVERIFY(shows());
}

void TestOrvCamConfigMainWindow::keepsPendingInput()
{
    Simulation simulation;
    simulation.set("FrameMode", "FrameA");

    OrvCamConfig window(&simulation.device);
    window.show();
    tick(window);

    // The user types a number for frame A, in the tree and in the dialog.
    OrvGui::OrvGenParamTreeView tree(&simulation.array, nullptr);
    tree.show();
    QAbstractItemModel *model = tree.treeView()->model();
    const QModelIndexList found =
        model->match(model->index(0, 0), Qt::DisplayRole, QString("Frame Exposure Lines"), 1,
                     Qt::MatchExactly | Qt::MatchRecursive);
    QCOMPARE(found.size(), 1);
    const QModelIndex cell = found.first().siblingAtColumn(1);
    tree.treeView()->scrollTo(cell);
    tree.treeView()->edit(cell);
    auto *editor = tree.treeView()->viewport()->findChild<QSpinBox *>();
    QVERIFY(editor);
    editor->findChild<QLineEdit *>()->setText("45");
    QSignalSpy dataChanges(model, &QAbstractItemModel::dataChanged);

    child<QPushButton>(window, "pushBtnFrameAB").click();
    simulation.set("FrameMode", "DualVideo");
    auto &tabs = child<QTabWidget>(window, "tabFrames");
    auto *clocks = child<QtOrvSpinBox>(window, "spBoxExpClocks").spinBox();
    type(clocks, QStringLiteral("11"), false);
    dataChanges.clear();
    QSignalSpy switches(&tabs, &QTabWidget::currentChanged);
    struct Sink : OrvGenParam::ParamEventSink
    {
        void OnParameterUpdate(OrvGenParam::Param *) override { ++moves; }
        int moves = 0;
    } sink;
    simulation.array.GetEnum("FrameAB_Selector")->RegisterEventSink(&sink);
    tick(window);
    QCOMPARE(sink.moves, 2); // there and back
    QCOMPARE(switches.count(), 0);
    QCOMPARE(dataChanges.count(), 0);
    QCOMPARE(clocks->cleanText(), QString("11"));
    QCOMPARE(editor->cleanText(), QString("45"));

    // Nothing has been written yet; the number goes to frame A when it is committed.
    QTest::keyClick(clocks, Qt::Key_Return);
    QCOMPARE(simulation.array.GetIntegerValue("Frame_ExposureClocks"), int64_t(11));
    simulation.select("FrameB");
    QVERIFY(simulation.array.GetIntegerValue("Frame_ExposureClocks") != 11);
    QCOMPARE(tabs.currentIndex(), 1); // the tabs follow notifications again
}

void TestOrvCamConfigMainWindow::lockedSelector()
{
    OrvGenApi::MemoryNodeMap map;
    auto &selector = map.addEnumeration("FrameAB_Selector", {{"FrameA", 0}, {"FrameB", 1}}, 1);
    map.addInteger("CurrentFrameTime", 8000);
    selector.setAccessMode(GenApi::RO);
    NodeMapDevice device(map);
    const OrvCamConfig window(&device);
    QCOMPARE(columnOf(window, 'A'), QString("   ")); // must not be the values of frame B
    QCOMPARE(columnOf(window, 'B'), QString(" 125.00 8000 "));

    // The selector is locked after it has moved: all windows show the frame that is now selected.
    Simulation simulation;
    simulation.set("FrameMode", "FrameA");
    OrvCamConfig stuck(&simulation.device);
    auto &tabs = child<QTabWidget>(stuck, "tabFrames");
    const QSignalSpy changes(&stuck, &OrvCamConfig::deviceChanged);
    simulation.set("FrameMode", "DualVideo");
    struct Lock : OrvGenParam::ParamEventSink
    {
        explicit Lock(GenApi::INode &n) : node(n) {}
        void OnParameterUpdate(OrvGenParam::Param *) override
        {
            if (!std::exchange(isLocked, true))
                node.ImposeAccessMode(GenApi::RO);
        }
        GenApi::INode &node;
        bool isLocked = false;
    } lock(*simulation.map->GetNode("FrameAB_Selector"));
    simulation.array.GetEnum("FrameAB_Selector")->RegisterEventSink(&lock);
    tick(stuck);
    QVERIFY(lock.isLocked);
    QCOMPARE(tabs.tabText(tabs.currentIndex()), simulation.get("FrameAB_Selector"));
    QCOMPARE(QString::number(child<QtOrvSpinBox>(stuck, "spBoxExpLines").value()),
             simulation.get("Frame_ExposureLines"));
    QCOMPARE(changes.count(), 1);

    // The device is removed while an error box is open: no other dialog gets it afterwards.
    selector.setAccessMode(GenApi::RW);
    selector.onWrite(throwRefusal);
    map.addEnumeration("FrameMode", {{"FrameA", 0}, {"FrameB", 1}});
    NodeMapDevice refusing(map);
    ErrorBoxes boxes;
    boxes.whileOpen = [&] { stuck.SetDevice(nullptr); };
    stuck.show();
    child<QPushButton>(stuck, "pushBtnFrameAB").click(); // a hidden dialog selects no frame
    stuck.SetDevice(&refusing);
    QCOMPARE(boxes.texts.size(), 1);
    QVERIFY(!stuck.device());
    for (const auto *dialog : stuck.findChildren<OrvGui::OrvCamConfigDialog *>())
        QVERIFY(!dialog->isEnabled());
}

void TestOrvCamConfigMainWindow::cameraWithOneFrame()
{
    OrvGenApi::MemoryNodeMap map;
    auto &frameTime = map.addInteger("CurrentFrameTime", 3);
    auto &exposure = map.addInteger("CurrentExposureTime", 12);
    map.addInteger("Width", 640);
    auto &temperature = map.addInteger("CurrentTemperature", 40);
    NodeMapDevice device(map);
    OrvCamConfig window(&device);
    window.show();
    QCOMPARE(columnOf(window, 'A'), QString("640x 333333.33 3 12"));
    QCOMPARE(statusOf(window), QString("Unknown"));
    QVERIFY(!child<QLineEdit>(window, "lineEditFpsFrameB").isVisible());
    QVERIFY(!child<QLabel>(window, "lblFrameB").isVisible());
    QVERIFY(!action(window, "actionFrame_A_B").isVisible());
    auto &button = child<QPushButton>(window, "pushBtnFrameAB");
    QVERIFY(!button.isVisible());
    for (int i = 0; i < 2; ++i)
        action(window, "actionFrame_A_B").trigger();
    QVERIFY(!button.isVisible());

    // Every field has a tool tip, also without the camera's feature.
    const QString toolTip = child<QLineEdit>(window, "lineEditFtmFrameA").toolTip();
    QVERIFY(toolTip.contains("Frame time") && toolTip.contains("CurrentFrameTime"));
    QCOMPARE(child<QLabel>(window, "lblFtm").toolTip(), toolTip);
    map.addString("DeviceModelName", "Hidden").setAccessMode(GenApi::WO);

    frameTime.change(0);
    temperature.change(-3);
    exposure.setAccessMode(GenApi::WO);
    tick(window);
    QCOMPARE(columnOf(window, 'A'), QString("640x 0.00 0 "));
    QCOMPARE(textOf(window, "lineEditTemperature"), QString("-3"));

    Simulation other;
    window.SetDevice(&other.device);
    QVERIFY(child<QLineEdit>(window, "lineEditFpsFrameB").isVisible());
    QVERIFY(action(window, "actionFrame_A_B").isVisible());
    QVERIFY(button.isVisible());
    QCOMPARE(columnOf(window, 'A'), selectedColumn(other.array));
    button.click();
    NodeMapDevice again(map);
    window.SetDevice(&again);
    QVERIFY(!child<QDialog>(window, "OrvCamConfigFrameABDialog").isVisible());
    QCOMPARE(statusOf(window), QString("Unknown")); // the model cannot be read
    window.SetDevice(nullptr);
    QCOMPARE(child<QLineEdit>(window, "lineEditFtmFrameA").toolTip(), QString("Frame time"));
}

void TestOrvCamConfigMainWindow::information()
{
    OrvGenApi::MemoryNodeMap map;
    map.addString("DeviceModelName", "\"Ü\" & Söhne");
    map.addString("SensorType", "CMOS").setAccessMode(GenApi::NI);
    map.addInteger("FirmwareVersion", 0x1234);
    map.addString("FpgaID", "not a number");
    const QStringList others{"RgsID",         "EpcsID",     "FirmwareImage",
                             "FirmwareBuild", "CustomerID", "XmlVersion"};
    for (const QString &feature : others)
        map.addInteger(feature.toLatin1().constData(), others.indexOf(feature));
    NodeMapDevice device(map);
    OrvCamConfig window(&device);
    action(window, "actionAbout").trigger();
    auto &about = child<QDialog>(window, "OrvCamConfigAboutDialog");
    QVERIFY(about.isVisible());
    const auto text = [&](const char *label) { return child<QLabel>(about, label).text(); };
    QCOMPARE(text("lblAppVersion"), QString("1.3.0 (build 2230) "));
    QCOMPARE(text("lblDeviceModelName"), QString::fromUtf8("\"Ü\" & Söhne"));
    QCOMPARE(child<QLabel>(about, "lblDeviceModelName").textFormat(), Qt::PlainText);
    QCOMPARE(text("lblFirmwareVersion"), QString("4660"));
    QCOMPARE(text("lblSensorType"), QString("N/A"));
    QCOMPARE(text("lblFpgaID"), QString("N/A"));
    for (const QString &feature : others)
        QCOMPARE(text(qPrintable("lbl" + feature)), QString::number(others.indexOf(feature)));
    const QString toolTip = child<QLabel>(window, "lblStatusText").toolTip();
    QVERIFY(Qt::mightBeRichText(toolTip));
    QCOMPARE(QTextDocumentFragment::fromHtml(toolTip).toPlainText(), statusOf(window));

    action(window, "actionDisconnect").trigger();
    int values = 0;
    for (const QLabel *label : about.findChildren<QLabel *>()) {
        const QGridLayout *grid = qobject_cast<QGridLayout *>(label->parentWidget()->layout());
        if (!grid || label->objectName().endsWith("Caption"))
            continue;
        ++values;
        QCOMPARE(label->text(), QString("N/A"));
    }
    QCOMPARE(values, 18);
    child<QPushButton>(about, "okButton").click();
    QVERIFY(!about.isVisible());
}

void TestOrvCamConfigMainWindow::buttonsAndView()
{
    Simulation simulation;
    OrvCamConfig window(&simulation.device);
    window.show();
    const char *const names[][3] = {
        {"pushBtnFrameAB", "actionFrame_A_B", "OrvCamConfigFrameABDialog"},
        {"pushBtnTrigger", "actionTrigger", "OrvCamConfigTriggerDialog"},
        {"pushBtnPulse", "actionPulse", "OrvCamConfigPulseDialog"},
        {"pushBtnStrobe", "actionStrobe", "OrvCamConfigStrobeDialog"},
        {"pushBtnDataOut", "actionData_Out", "OrvCamConfigOutputDialog"},
        {"pushBtnColor", "actionColor", "OrvCamConfigColorDialog"}};
    for (int i = 0; i < 6; ++i) {
        auto &button = child<QPushButton>(window, names[i][0]);
        QAction &view = action(window, names[i][1]);
        auto &dialog = child<QDialog>(window, names[i][2]);
        const auto isOpen = [&] { return dialog.isVisible() && button.isChecked(); };
        const auto isClosed = [&] { return !dialog.isVisible() && !button.isChecked(); };
        QVERIFY(view.isChecked() && button.isVisible() && isClosed());
        for (int times = 0; times < 2; ++times) { // the shortcut never closes it
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            QTest::keyClick(&window, Qt::Key(Qt::Key_1 + i), Qt::ControlModifier);
            QVERIFY(isOpen());
        }
        dialog.close();
        QVERIFY(isClosed());
        button.click();
        QVERIFY(isOpen());
        button.click();
        QVERIFY(isClosed());
        button.click();
        view.trigger();
        QVERIFY(isClosed() && !button.isVisible());
        view.trigger();
        QVERIFY(isClosed() && button.isVisible());
        button.click();
    }
    // Closing the window closes its dialogs, which can be opened again later.
    action(window, "actionQuit").trigger();
    QVERIFY(!window.isVisible());
    for (const QDialog *dialog : window.findChildren<QDialog *>())
        QVERIFY(!dialog->isVisible());
    QVERIFY(!child<QPushButton>(window, "pushBtnPulse").isChecked());
}

void TestOrvCamConfigMainWindow::releasesOnlyItsOwnDevices_data()
{
    // The steps, one word each: c0, c1 connect in the picker, cx cancels it; h0, h1, hx: the host
    // sets a device of its own, or none; d disconnects; u0, u1 unplug and p0, p1 plug in a camera;
    // r0, r1: the host releases its device.
    QTest::addColumn<QString>("steps");
    for (const char *steps :
         {"c0 d", "c0 c0", "c0 c1", "c0 cx", "c0 u0 p0", "c0 u0 c1 p0", "c0 u0 d p0", "c0 u0 h1 p0",
          "c0 h1", "h0 c1", "h0 u0 p0", "h0 u0 hx p0", "h0 d", "h0 h0 u0 p0 u0", "h0 hx u0 h0 p0"})
        QTest::newRow(steps) << steps;

    const QStringList words = {"c0", "c1", "cx", "h0", "h1", "hx", "d",
                               "u0", "u1", "p0", "p1", "r0", "r1"};
    for (unsigned seed = 1; seed <= 6; ++seed) {
        std::mt19937 random(seed);
        QStringList steps;
        for (int i = 0; i < 40; ++i)
            steps << words[int(random() % unsigned(words.size()))];
        QTest::newRow(qPrintable(QString::number(seed))) << steps.join(' ');
    }
}

void TestOrvCamConfigMainWindow::releasesOnlyItsOwnDevices()
{
    QFETCH(QString, steps);
    Scenario scenario;
    for (const QString &word : steps.split(' ')) {
        if (scenario.perform(word))
            scenario.check();
        if (QTest::currentTestFailed()) {
            qWarning("with \"%s\" in: %s", qPrintable(word), qPrintable(steps));
            return;
        }
    }
    scenario.end();
}

void TestOrvCamConfigMainWindow::pickedInTheConstructor()
{
    OfferedCameras offered;
    offeredCameras = &offered;
    {
        ModalVisitor user({picking(1)});
        OrvCamConfig window(nullptr);
        QVERIFY(user.isDone());
        QCOMPARE(statusOf(window), QString("Second"));
        QCOMPARE(CountedDevice::counts(offered.second).open, 1);
        QCOMPARE(offered.systems(), 1);
        for (QDialog *dialog : window.findChildren<OrvGui::OrvCamConfigDialog *>())
            QVERIFY(dialog->isEnabled());
    }
    QCOMPARE(CountedDevice::counts(offered.second).open, 0);
    QCOMPARE(offered.systems(), 0);

    offeredCameras = nullptr; // there is no camera system
    const OrvCamConfig window(nullptr);
    QCOMPARE(statusOf(window), QString("Disconnected"));
    for (QDialog *dialog : window.findChildren<OrvGui::OrvCamConfigDialog *>())
        QVERIFY(!dialog->isEnabled());
}

void TestOrvCamConfigMainWindow::cameraThatCannotBeOpened()
{
    Scenario scenario;
    scenario.offered.first.isPlugged = false;
    ModalVisitor user({picking(0)});
    action(*scenario.window, "actionConnect").trigger();
    QCOMPARE(statusOf(*scenario.window), QString("Disconnected"));
    // A non-modal error box.
    auto *box = scenario.window->findChild<QMessageBox *>();
    QVERIFY(box && box->isVisible() && box->text().contains("First"));
    box->button(QMessageBox::Ok)->click();
    scenario.end();
}

void TestOrvCamConfigMainWindow::destroyedWhilePicking()
{
    Scenario scenario;
    QVERIFY(scenario.perform("c0"));
    ModalVisitor user({[&](QDialog &) { scenario.window.reset(); }});
    action(*scenario.window, "actionConnect").trigger();
    QVERIFY(!scenario.window && user.isDone());
    QCOMPARE(CountedDevice::counts(scenario.offered.first).open, 0);
    QCOMPARE(scenario.offered.systems(), 0);
}

void TestOrvCamConfigMainWindow::twoWindowsOnOneCamera()
{
    Scenario scenario;
    QVERIFY(scenario.perform("h0"));
    auto other = std::make_unique<OrvCamConfig>(scenario.hosts[0]);
    QCOMPARE(CountedDevice::counts(scenario.offered.first).events, 4);
    const auto both = [&](const char *text) {
        tick(*scenario.window);
        tick(*other);
        return statusOf(*scenario.window) == text && statusOf(*other) == text;
    };
    QVERIFY(both("First"));
    scenario.offered.first.isPlugged = false;
    QTRY_VERIFY(both("Disconnected"));
    scenario.offered.first.isPlugged = true;
    QTRY_VERIFY(both("First"));
    other.reset();
    QCOMPARE(CountedDevice::counts(scenario.offered.first).events, 2);
    scenario.check();
    scenario.end();
}

void TestOrvCamConfigMainWindow::showFunctions()
{
    const struct
    {
        void (*show)(OrvCamDevice *, unsigned long);
        const char *window;
    } functions[] = {{ShowCamConfigDialog, "OrvGui::OrvCamConfig"},
                     {ShowColorDialog, "OrvGui::OrvCamConfigColorDialog"},
                     {ShowFrameABDialog, "OrvGui::OrvCamConfigColorDialog"},
                     {ShowOutputDialog, "OrvGui::OrvCamConfigOutputDialog"},
                     {ShowPulseDialog, "OrvGui::OrvCamConfigPulseDialog"},
                     {ShowStrobeDialog, "OrvGui::OrvCamConfigStrobeDialog"},
                     {ShowTriggerDialog, "OrvGui::OrvCamConfigTriggerDialog"}};
    const QWidgetList before = QApplication::topLevelWidgets();
    OfferedCameras offered;
    offeredCameras = &offered;
    Simulation simulation;
    for (const auto &function : functions) {
        for (OrvCam::Device *device : QList<OrvCam::Device *>{&simulation.device, nullptr}) {
            const ShownWindows windows;
            ModalVisitor noDialog({});
            QElapsedTimer timer;
            timer.start();
            function.show(device, 0);
            QVERIFY(timer.elapsed() < 1000);
            QVERIFY(noDialog.isDone());
            QCOMPARE(windows.names, QStringList(function.window));
            QCOMPARE(QApplication::topLevelWidgets(), before);
        }
        // The camera has no sinks left and can be destroyed.
        for (const char *mode : {"FrameA", "DualVideo"})
            simulation.set("FrameMode", mode);
        for (const char *mode : {"On", "Off"})
            simulation.set("TriggerMode", mode);
        OrvCam::Device *counted = CountedDevice::open(offered.first, offered.firstInfo);
        function.show(counted, 0);
        QCOMPARE(CountedDevice::counts(offered.first).events, 0);
        counted->Release();
    }
    QCOMPARE(offered.systems(), 0);
    offeredCameras = nullptr;
}

QTEST_MAIN(TestOrvCamConfigMainWindow)
#include "tst_orvcamconfig_mainwindow.moc"

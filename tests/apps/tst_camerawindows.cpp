// SPDX-License-Identifier: MIT
#include "camerawindows.h"
#include "featuresource.h"
#include "placing.h"
#include "treecells.h"

#include <fakecameras.h>

#include <QtTest>
#include <QtWidgets>

namespace {

QAction &action(CameraWindows &windows, const char *name)
{
    auto *found = windows.configuration().findChild<QAction *>(QString::fromLatin1(name));
    if (!found)
        qFatal("There is no %s", name);
    return *found;
}

/// The area in which windows may be placed.
QRect screenArea()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

/// The device of a camera that has been disconnected.
class Vanished final : public FakeDevice
{
public:
    explicit Vanished(OrvCam::DeviceInfo *info) : m_info(info) {}

    OrvCam::DeviceInfo *GetDeviceInfo() const override { return m_info; }
    void Release() override { delete this; }

private:
    OrvCam::DeviceInfo *const m_info;
};

} // namespace

/// The program's windows on a simulated camera.
class TestCameraWindows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void windowsShowTheSameCamera();
    void treeFollowsConfiguration();
    void settingsMenu();
    void titlesNameTheCamera();
    void layoutIsRestored();
    void damagedSettings();
    void treeBesideMainWindow_data();
    void treeBesideMainWindow();
    void positionOffTheScreens_data();
    void positionOffTheScreens();
    void vanishedCamera();

private:
    OrvCam::Released<OrvCam::Device> open()
    {
        return OrvCam::Released<OrvCam::Device>(
            OrvCam_CreateDevice(m_camera, nullptr, OrvCam::AccessControl));
    }

    OrvCam::Released<OrvCam::System> m_system;
    OrvCam::DeviceInfo *m_camera = nullptr;
};

void TestCameraWindows::initTestCase()
{
    qputenv("ORVCAM_SIMULATION", "1");
    m_system.reset(OrvCam_GetSystem());
    const OrvCam::Released<OrvCam::InterfaceList> interfaces(
        m_system->GetInterfaceSet(OrvCam::InterfaceAll));
    OrvCam::Interface *first = interfaces->GetFirst();
    first->RefreshDevices(nullptr, 0);
    const OrvCam::Released<OrvCam::DeviceInfoList> cameras(first->GetDeviceInfoSet());
    m_camera = cameras->GetFirst();
    QVERIFY(m_camera);
}

void TestCameraWindows::windowsShowTheSameCamera()
{
    CameraWindows windows(open(), nullptr);
    windows.show();
    QVERIFY(windows.configuration().isVisible() && windows.tree().isVisible());
    QCOMPARE(windows.tree().windowTitle(), QString("DualFrame 12M (SIM-0001)"));
    windows.tree().setVisibility(OrvGui::Guru);
    QAbstractItemModel *model = windows.tree().treeView()->model();

    // From the dialog to the tree, and from the tree to the dialog.
    auto *box = windows.configuration().findChild<QCheckBox *>("chBoxTriggerEnable");
    QCOMPARE(valueCell(*model, "TriggerMode").data().toString(), QString("Off"));
    box->click();
    QCOMPARE(valueCell(*model, "TriggerMode").data().toString(), QString("On"));
    QVERIFY(model->setData(valueCell(*model, "TriggerMode"), 0));
    QVERIFY(!box->isChecked());

    // A change made in one window can be undone in the other.
    const auto isBold = [&](const char *feature) {
        const QModelIndex cell = valueCell(*model, feature);
        return cell.siblingAtColumn(0).data(Qt::FontRole).value<QFont>().bold();
    };
    QVERIFY(!isBold("TriggerMode"));
    action(windows, "actionUndo").trigger(); // of the configuration window
    QVERIFY(box->isChecked() && isBold("TriggerMode"));
    windows.tree().findChild<QAction *>("actionUndo")->trigger();
    QVERIFY(!box->isChecked() && !isBold("TriggerMode"));

    windows.configuration().close();
    QVERIFY(!windows.tree().isVisible());
}

void TestCameraWindows::treeFollowsConfiguration()
{
    CameraWindows windows(open(), nullptr);
    windows.show();
    windows.tree().treeView()->expandAll();
    QVERIFY(!open()); // the windows have exclusive access
    QPointer<QAbstractItemModel> model = windows.tree().treeView()->model();

    action(windows, "actionDisconnect").trigger();
    QVERIFY(!model || model->rowCount() == 0);
    {
        const OrvCam::Released<OrvCam::Device> device = open(); // the camera is free now
        QVERIFY(device);
        // The host of the configuration window may set another device.
        windows.configuration().SetDevice(device.get());
        model = windows.tree().treeView()->model();
        QVERIFY(model && model->rowCount() > 5);
        QVERIFY(windows.tree().treeView()->isExpanded(model->index(0, 0))); // as before
        windows.configuration().SetDevice(nullptr);
    }
    QCOMPARE(windows.tree().windowTitle(), QString("Features"));
}

void TestCameraWindows::settingsMenu()
{
    CameraWindows windows(open(), nullptr);
    const auto *menu = windows.configuration().findChild<QMenu *>("menuMenu");
    QStringList names;
    for (const QAction *entry : menu->actions())
        names << (entry->isSeparator() ? QString("-") : entry->objectName());
    QCOMPARE(names,
             QStringList({"actionConnect", "actionDisconnect", "-", "actionSaveSettings",
                          "actionLoadSettings", "actionPutSettingsBack", "actionCompareSettings",
                          "actionUserSets", "-", "actionUndo", "actionRedo", "-", "actionQuit"}));
    const QList<QAction *> entries = windows.tree().menu()->actions();
    QVERIFY(entries.contains(windows.settingsMenu().actions().first()));
    QVERIFY(action(windows, "actionSaveSettings").isEnabled());
    QTemporaryDir folder;
    QSignalSpy finished(&windows.settingsMenu(), &OrvGui::OrvSettingsMenu::finished);
    windows.settingsMenu().save(folder.filePath("a.pfs"));
    QVERIFY(finished.wait());
    QVERIFY(QFile::exists(folder.filePath("a.pfs")));
    action(windows, "actionDisconnect").trigger();
    QVERIFY(!action(windows, "actionSaveSettings").isEnabled());
    QVERIFY(!action(windows, "actionUserSets").isVisible());
}

void TestCameraWindows::titlesNameTheCamera()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    CameraWindows windows(open(), &settings);
    const auto *dialog = windows.configuration().findChild<QDialog *>("OrvCamConfigTriggerDialog");
    const auto titles = [&]() -> QString {
        return windows.configuration().windowTitle() + '|' + dialog->windowTitle();
    };
    const QString plain = "CamConfig|Trigger Control";
    const QString camera = "DualFrame 12M (SIM-0001) - ";
    QCOMPARE(titles(), plain);
    OpenCameras other(folder.filePath("open")); // of another program
    other.setOpen(true);
    QTRY_COMPARE(titles(), camera + "CamConfig|" + camera + "Trigger Control");
    action(windows, "actionDisconnect").trigger();
    QCOMPARE(titles(), plain);
    const OrvCam::Released<OrvCam::Device> device = open();
    windows.configuration().SetDevice(device.get());
    QVERIFY(titles().startsWith(camera));
    other.setOpen(false);
    QTRY_COMPARE(titles(), plain);
    windows.configuration().SetDevice(nullptr);
}

void TestCameraWindows::layoutIsRestored()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    QSize size;
    QByteArray state;
    {
        CameraWindows windows(open(), &settings);
        windows.show();
        QVERIFY(windows.tree().isVisible());
        windows.tree().setVisibility(OrvGui::Guru);
        windows.tree().resize(500, 420);
        windows.tree().treeView()->expandAll();
        windows.tree().treeView()->collapse(windows.tree().treeView()->model()->index(2, 0));
        state = windows.tree().saveState();
        windows.configuration().resize(444, 399);
        size = windows.configuration().size();
        action(windows, "actionPulse").trigger();
        windows.tree().close();
        QVERIFY(!action(windows, "actionFeatureTree").isChecked());
        // The layout is saved even if the camera is disconnected before the windows close.
        action(windows, "actionDisconnect").trigger();
        windows.configuration().close();
    }
    CameraWindows windows(open(), &settings);
    windows.show();
    QVERIFY(!windows.tree().isVisible());
    action(windows, "actionFeatureTree").trigger();
    QVERIFY(windows.tree().isVisible());
    QCOMPARE(windows.tree().size(), QSize(500, 420));
    QCOMPARE(QByteArray(windows.tree().saveState()), state);
    QCOMPARE(windows.configuration().size(), size);
    QVERIFY(!windows.configuration().findChild<QPushButton *>("pushBtnPulse")->isVisible());
    QVERIFY(windows.configuration().findChild<QPushButton *>("pushBtnColor")->isVisible());
    const auto spans = [](CameraWindows &of) {
        int count = 0;
        for (int row = 0; row < of.tree().treeView()->model()->rowCount(); ++row)
            count += of.tree().treeView()->isFirstColumnSpanned(row, QModelIndex()) ? 1 : 0;
        return count;
    };
    const int all = spans(windows);
    QCOMPARE(all, windows.tree().treeView()->model()->rowCount());

    // A requested level overrides the saved one.
    action(windows, "actionDisconnect").trigger();
    CameraWindows asked(open(), &settings, OrvGui::Basic);
    QCOMPARE(asked.tree().visibility(), OrvGui::Basic);
    QVERIFY(spans(asked) < all);
}

void TestCameraWindows::damagedSettings()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    for (const char *state : {"Device Control&lt;&amp;Wabc", "&amp;V99999999999"}) {
        settings.setValue("tree/state", QByteArray(state));
        CameraWindows windows(open(), &settings);
        const QTreeView *view = windows.tree().treeView();
        for (int row = 0; row < 5; ++row)
            QVERIFY(view->isExpanded(view->model()->index(row, 0))); // the default
    }
}

void TestCameraWindows::treeBesideMainWindow_data()
{
    QTest::addColumn<QRect>("main");
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("isRightToLeft");
    QTest::addColumn<int>("side"); // 1 right, -1 left, 0 above the main window
    const int all = screenArea().width();
    const QRect middle(all / 2 - 100, 100, 200, 100);
    QTest::newRow("room on both sides") << middle << all / 4 << false << 1;
    QTest::newRow("right to left") << middle << all / 4 << true << -1;
    QTest::newRow("a bit narrower") << middle << all / 2 - 120 << false << 1;
    QTest::newRow("at the right") << QRect(all - 210, 100, 200, 100) << all / 2 << false << -1;
    QTest::newRow("at the left") << QRect(10, 100, 200, 100) << all / 2 << true << 1;
    QTest::newRow("no room") << middle << all << false << 0;
}

void TestCameraWindows::treeBesideMainWindow()
{
    QFETCH(QRect, main);
    QFETCH(int, width);
    QFETCH(bool, isRightToLeft);
    QFETCH(int, side);
    QApplication::setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    QWidget window;
    window.setGeometry(main);
    window.show();
    QWidget tree;
    tree.resize(width, 2 * screenArea().height());
    Placing::beside(&tree, &window);
    QApplication::setLayoutDirection(Qt::LeftToRight);

    const QRect place = tree.geometry();
    QVERIFY(screenArea().contains(place));
    QVERIFY(place.width() <= width && place.width() >= width * 2 / 3 - 20);
    QCOMPARE(place.left() > main.right() ? 1 : place.right() < main.left() ? -1 : 0, side);
}

void TestCameraWindows::positionOffTheScreens_data()
{
    QTest::addColumn<QRect>("place");
    QTest::addColumn<bool>("isThere");
    const QRect screen = screenArea();
    QTest::newRow("there") << QRect(100, 100, 300, 200) << true;
    QTest::newRow("screen that is gone") << QRect(screen.right() + 100, 100, 300, 200) << false;
    QTest::newRow("hardly there") << QRect(screen.right() - 100, 100, 300, 200) << false;
    QTest::newRow("partly outside") << QRect(screen.right() - 200, 100, 300, 200) << true;
    QTest::newRow("larger screen") << screen.adjusted(0, 0, 200, 200) << true;
}

void TestCameraWindows::positionOffTheScreens()
{
    QFETCH(QRect, place);
    QFETCH(bool, isThere);
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    QWidget before;
    before.setGeometry(place);
    Placing::save(&before, &settings, "window");
    settings.sync();
    QWidget after;
    QCOMPARE(Placing::restore(&after, &settings, "window"), isThere);
    if (!isThere)
        return;
    QVERIFY(screenArea().contains(after.geometry()));
    QCOMPARE(after.size(), place.size().boundedTo(after.size()));
    if (screenArea().adjusted(20, 40, -20, -20).contains(place))
        QCOMPARE(after.geometry(), place);
}

void TestCameraWindows::vanishedCamera()
{
    QString error;
    QVERIFY(!FeatureSource::ofDevice(OrvCam::Released<OrvCam::Device>(new Vanished(m_camera)),
                                     false, &error));
    QCOMPARE(error, QString("The camera 'Simulated-SIM-0001' is gone."));
}

QTEST_MAIN(TestCameraWindows)
#include "tst_camerawindows.moc"

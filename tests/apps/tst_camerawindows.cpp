// SPDX-License-Identifier: MIT
#include "camerawindows.h"
#include "treecells.h"

#include <OrvCam.h>
#include <OrvGenParam.h>

#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QTreeView>
#include <QtTest>

namespace {

QAction &action(CameraWindows &windows, const char *name)
{
    auto *found = windows.configuration().findChild<QAction *>(QString::fromLatin1(name));
    if (!found)
        qFatal("There is no %s", name);
    return *found;
}

} // namespace

/// The program's windows on a simulated camera.
class TestCameraWindows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void showTheSameCamera();
    void followTheConfiguration();
    void rememberedFromRunToRun();

private:
    Released<OrvCam::Device> open()
    {
        return Released<OrvCam::Device>(
            OrvCam_CreateDevice(m_camera, nullptr, OrvCam::AccessControl));
    }

    Released<OrvCam::System> m_system;
    OrvCam::DeviceInfo *m_camera = nullptr;
};

void TestCameraWindows::initTestCase()
{
    qputenv("ORVCAM_SIMULATION", "1");
    m_system.reset(OrvCam_GetSystem());
    const Released<OrvCam::InterfaceList> interfaces(
        m_system->GetInterfaceSet(OrvCam::InterfaceAll));
    OrvCam::Interface *first = interfaces->GetFirst();
    first->RefreshDevices(nullptr, 0);
    const Released<OrvCam::DeviceInfoList> cameras(first->GetDeviceInfoSet());
    m_camera = cameras->GetFirst();
    QVERIFY(m_camera);
}

void TestCameraWindows::showTheSameCamera()
{
    CameraWindows windows(open(), nullptr);
    windows.show();
    QVERIFY(windows.configuration().isVisible() && windows.tree().isVisible());
    QCOMPARE(windows.tree().windowTitle(), QString("DualFrame 12M (SIM-0001)"));
    windows.tree().setVisibility(OrvGui::Guru);
    QAbstractItemModel *model = windows.tree().treeView()->model();

    // From a dialog to the tree, and back.
    auto *box = windows.configuration().findChild<QCheckBox *>("chBoxTriggerEnable");
    QCOMPARE(valueCell(*model, "TriggerMode").data().toString(), QString("Off"));
    box->click();
    QCOMPARE(valueCell(*model, "TriggerMode").data().toString(), QString("On"));
    QVERIFY(model->setData(valueCell(*model, "TriggerMode"), 0));
    QVERIFY(!box->isChecked());

    windows.configuration().close();
    QVERIFY(!windows.tree().isVisible());
}

void TestCameraWindows::followTheConfiguration()
{
    CameraWindows windows(open(), nullptr);
    windows.show();
    windows.tree().treeView()->expandAll();
    QVERIFY(!open()); // it has the camera to itself
    QPointer<QAbstractItemModel> model = windows.tree().treeView()->model();

    action(windows, "actionDisconnect").trigger();
    QVERIFY(!model || model->rowCount() == 0);
    {
        const Released<OrvCam::Device> device = open(); // others can have it now
        QVERIFY(device);
        // The host of the configuration window may give it another one.
        windows.configuration().SetDevice(device.get());
        model = windows.tree().treeView()->model();
        QVERIFY(model && model->rowCount() > 5);
        QVERIFY(windows.tree().treeView()->isExpanded(model->index(0, 0))); // as it was left
        windows.configuration().SetDevice(nullptr);
    }
    QCOMPARE(windows.tree().windowTitle(), QString("Features"));
}

void TestCameraWindows::rememberedFromRunToRun()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    QSize size;
    {
        CameraWindows windows(open(), &settings);
        windows.show();
        QVERIFY(windows.tree().isVisible());
        windows.tree().setVisibility(OrvGui::Expert);
        windows.tree().resize(500, 420);
        windows.tree().treeView()->collapseAll();
        QAbstractItemModel *model = windows.tree().treeView()->model();
        windows.tree().treeView()->expand(model->index(2, 0));
        windows.configuration().resize(444, 399);
        size = windows.configuration().size();
        action(windows, "actionPulse").trigger();
        windows.tree().close();
        QVERIFY(!action(windows, "actionFeatureTree").isChecked());
        // Also when the camera is gone at the end.
        action(windows, "actionDisconnect").trigger();
        windows.configuration().close();
    }
    CameraWindows windows(open(), &settings);
    windows.show();
    QVERIFY(!windows.tree().isVisible());
    action(windows, "actionFeatureTree").trigger();
    QVERIFY(windows.tree().isVisible());
    QCOMPARE(windows.tree().size(), QSize(500, 420));
    QCOMPARE(windows.tree().visibility(), OrvGui::Expert);
    const QTreeView *view = windows.tree().treeView();
    for (int row = 0; row < 5; ++row)
        QCOMPARE(view->isExpanded(view->model()->index(row, 0)), row == 2);
    QCOMPARE(windows.configuration().size(), size);
    QVERIFY(!windows.configuration().findChild<QPushButton *>("pushBtnPulse")->isVisible());
    QVERIFY(windows.configuration().findChild<QPushButton *>("pushBtnColor")->isVisible());
}

QTEST_MAIN(TestCameraWindows)
#include "tst_camerawindows.moc"

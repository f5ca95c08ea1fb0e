// SPDX-License-Identifier: MIT
#include "twotrees.h"

#include <orvcameraapi.h>
#include <orvgenparamtreeview.h>

#include <QSettings>
#include <QTreeView>
#include <QtTest>

class TestQtHost : public QObject
{
    Q_OBJECT

private slots:
    void looksAsItWasLeft();
};

void TestQtHost::looksAsItWasLeft()
{
    qputenv("ORVCAM_SIMULATION", "1");
    OrvCamSystem *system = OrvCam_GetSystem();
    OrvCam_RefreshDevices(system, 200);
    OrvCamDevice *devices[2] = {};
    OrvGenParam::Array *parameters[2] = {};
    for (uint32_t i = 0; i < 2; ++i) {
        devices[i] =
            OrvCam_CreateDevice(OrvCam_GetDeviceInfo(system, i), nullptr, OrvCam_AccessControl);
        parameters[i] = OrvCam_GetParamArray(devices[i], nullptr);
        QVERIFY(parameters[i]);
    }
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("left.ini")), QSettings::IniFormat);
    QByteArray left;
    QByteArray right;
    {
        TwoTrees window(parameters[0], parameters[1], settings);
        window.show();
        QTreeView *tree = window.left().treeView();
        tree->expand(tree->model()->index(2, 0));
        tree->setColumnWidth(0, 177);
        window.right().setVisibility(OrvGui::Guru);
        window.right().treeView()->expandAll(); // also what is not shown at another level
        left = window.left().saveState();
        right = window.right().saveState();
        QVERIFY(left != right);
        window.close();
    }
    settings.sync();

    QSettings again(settings.fileName(), QSettings::IniFormat);
    {
        TwoTrees window(parameters[0], parameters[1], again);
        window.show();
        QCOMPARE(QByteArray(window.left().saveState()), left);
        QCOMPARE(QByteArray(window.right().saveState()), right);
    }
    for (OrvCamDevice *device : devices)
        OrvCam_ReleaseDevice(device);
    OrvCam_ReleaseSystem(system);
}

QTEST_MAIN(TestQtHost)
#include "tst_qthost.moc"

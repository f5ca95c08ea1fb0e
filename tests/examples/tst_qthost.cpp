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
    void initTestCase();
    void cleanupTestCase();
    void looksAsItWasLeft();

private:
    OrvGenParam::Array *parameters(int camera) const
    {
        return OrvCam_GetParamArray(m_devices[camera], nullptr);
    }

    QTemporaryDir m_folder;
    OrvCamSystem *m_system = nullptr;
    OrvCamDevice *m_devices[2] = {};
};

void TestQtHost::initTestCase()
{
    qputenv("ORVCAM_SIMULATION", "1");
    m_system = OrvCam_GetSystem();
    QCOMPARE(OrvCam_RefreshDevices(m_system, 200), int32_t(OrvCam_Success));
    for (uint32_t i = 0; i < 2; ++i) {
        m_devices[i] =
            OrvCam_CreateDevice(OrvCam_GetDeviceInfo(m_system, i), nullptr, OrvCam_AccessControl);
        QVERIFY(m_devices[i]);
    }
}

void TestQtHost::cleanupTestCase()
{
    for (OrvCamDevice *device : m_devices)
        OrvCam_ReleaseDevice(device);
    OrvCam_ReleaseSystem(m_system);
}

void TestQtHost::looksAsItWasLeft()
{
    QSettings settings(m_folder.filePath(QStringLiteral("left.ini")), QSettings::IniFormat);
    QByteArray left;
    QByteArray right;
    {
        TwoTrees window(parameters(0), parameters(1), settings);
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
    TwoTrees window(parameters(0), parameters(1), again);
    window.show();
    QCOMPARE(QByteArray(window.left().saveState()), left);
    QCOMPARE(QByteArray(window.right().saveState()), right);
    QVERIFY(window.left().treeView()->isExpanded(window.left().treeView()->model()->index(2, 0)));
}

QTEST_MAIN(TestQtHost)
#include "tst_qthost.moc"

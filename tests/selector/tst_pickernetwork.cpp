// SPDX-License-Identifier: MIT
#include "modalvisitor.h"
#include "orvcameraselectordialog.h"
#include "pickerparts.h"

#include <OrvCam.h>
#include <cameranetwork.h>

#include <QtTest>
#include <QtWidgets>

/// The picker on a network adapter, 10.1.0.1, with a cable to another machine.
class TestPickerNetwork : public QObject
{
    Q_OBJECT

private slots:
    void makesCameraReachable();
};

void TestPickerNetwork::makesCameraReachable()
{
    CameraNetwork network("orv0", "10.1.0.1/24", "10.1.0.2/24");
    TestCamera camera(network.cameraSettings(0x001B2C3D4E5F, "169.254.7.21"));
    const OrvCam::Released<OrvCam::System> system(OrvCam_GetSystem());
    OrvGui::OrvCameraSelectorDialog picker(system.get());
    picker.show();
    const auto shows = [&](const QString &fact) {
        return factsOf(*picker.findChild<QTreeView *>("deviceInfoTreeView")).contains(fact);
    };
    cameraTree(picker)->setCurrentIndex(rowNamed(*cameraTree(picker), "TestCamera"));
    QVERIFY(shows("Access status: IP Subnet Mismatch") && shows("IP Address: 169.254.7.21"));
    QVERIFY(!button(picker, "OK")->isEnabled());

    const ModalVisitor visitor({[](QDialog &dialog) {
        const auto text = [&](const char *field) {
            return dialog.findChild<QLineEdit *>(field)->text();
        };
        QCOMPARE(text("nicIpLineEdit"), QString("10.1.0.1"));
        QCOMPARE(text("macAddressLineEdit"), QString("00:1B:2C:3D:4E:5F"));
        QCOMPARE(text("ipAddressLineEdit"), QString("10.1.0.2"));
        QTest::keyClicks(QApplication::focusWidget(), "77"); // replaces the host number
        QCOMPARE(dialog.findChild<QLabel *>("ipStatusLabel")->text(),
                 QString("IP Configuration OK"));
        dialog.accept();
    }});
    // The picker waits for an answer from the new address.
    network.runFar("ip", "addr add 10.1.0.77/24 dev " + network.farName());
    button(picker, "Set IP Address")->click();
    network.runFar("ip", "addr del 10.1.0.77/24 dev " + network.farName());
    QVERIFY(visitor.isDone());
    QVERIFY(!camera.forcedIps().empty());
    QVERIFY(shows("Access status: ReadWrite") && shows("IP Address: 10.1.0.77"));
    button(picker, "OK")->click();
    QCOMPARE(picker.result(), int(QDialog::Accepted));
    QCOMPARE(picker.selectedCamera()->GetId(), "00:1B:2C:3D:4E:5F");
}

QTEST_MAIN(TestPickerNetwork)
#include "tst_pickernetwork.moc"

// SPDX-License-Identifier: MIT
#include "modalvisitor.h"
#include "orvcameraguiapi.h"
#include "pickerparts.h"
#include "selectcamera.h"

#include <OrvCam.h>
#include <xdotool.h>
#include <xwindow.h>

#include <QScreen>
#include <QWindow>
#include <QtTest>

/// The picker as hosts call it, with simulated cameras. xdotool sends the user's keys through the X
/// server.
class TestSelectCamera : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void opensOnForeignWindow();
    void opensWithInvalidParent();

private:
    OrvCam::System *m_system = nullptr;
};

void TestSelectCamera::initTestCase()
{
    qputenv("ORVCAM_SIMULATION", "1");
    m_system = OrvCam_GetSystem();
    QVERIFY(m_system);
}

/// With a parent window that belongs to a program without Qt.
void TestSelectCamera::opensOnForeignWindow()
{
    XView x;
    const QRect place(200, 150, 900, 700);
    const xcb_window_t host = x.makeWindow(x.screen().root, place, 0);
    const auto isUnharmed = [&](int children) {
        return x.children(x.screen().root).contains(host) && x.geometry(host) == place &&
               x.children(host).size() == children;
    };
    for (int time = 0; time < 2; ++time) {
        const ModalVisitor visitor({[&](QDialog &dialog) {
            QVERIFY(isUnharmed(1)); // the child is the hidden window of the container
            QCOMPARE(x.ownerOf(static_cast<xcb_window_t>(dialog.winId())), host);
            const QPoint distance = dialog.geometry().center() - place.center();
            QVERIFY(distance.manhattanLength() <= 2);
            dialog.activateWindow(); // no window manager does this
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            press({"Down", "Down", "Return"});
            QTest::qWait(30);
        }});
        const OrvCam::DeviceInfo *camera = OrvGui::SelectCamera(m_system, QString(), host);
        QVERIFY(visitor.isDone());
        QCOMPARE(camera->GetSerial(), "SIM-0001");
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
        QVERIFY(QGuiApplication::allWindows().isEmpty());
        QTest::qWait(50);
        QVERIFY(isUnharmed(0));
    }
}

void TestSelectCamera::opensWithInvalidParent()
{
    const ModalVisitor visitor({[](QDialog &dialog) {
        QVERIFY(QGuiApplication::primaryScreen()->geometry().contains(dialog.geometry()));
        dialog.reject();
    }});
    QVERIFY(!SelectCameraA(m_system, "", 0x1ffffff0));
    QVERIFY(visitor.isDone());
}

QTEST_MAIN(TestSelectCamera)
#include "tst_selectcamera.moc"

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

/// The picker as hosts call it, on the simulated cameras and driven as a user does: xdotool presses
/// the keys and buttons of the X server.
class TestSelectCamera : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void keyboard();
    void tabOrder();
    void mouse();
    void titles();
    void foreignParent();
    void noSuchParent();

private:
    OrvCam::DeviceInfo *select(const QList<ModalVisitor::Action> &dialogs);

    OrvCam::System *m_system = nullptr;
};

namespace {

/// Gives the program the time to see the keys.
void pressAndWait(const QStringList &keys)
{
    press(keys);
    QTest::qWait(30);
}

/// Without a window manager nobody else does that.
void activate(QDialog &dialog)
{
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
}

} // namespace

void TestSelectCamera::initTestCase()
{
    qputenv("ORVCAM_SIMULATION", "1");
    m_system = OrvCam_GetSystem();
    QVERIFY(m_system);
}

/// Returns what the picker returns, after exactly these dialogs.
OrvCam::DeviceInfo *TestSelectCamera::select(const QList<ModalVisitor::Action> &dialogs)
{
    const ModalVisitor visitor(dialogs);
    OrvCam::DeviceInfo *camera = SelectCameraA(m_system, "Pick", 0);
    if (!visitor.isDone())
        qFatal("Not the dialogs that were expected");
    return camera;
}

void TestSelectCamera::keyboard()
{
    OrvCam::DeviceInfo *camera = select({[](QDialog &dialog) {
        activate(dialog);
        pressAndWait({"Down", "Down", "Down"});
        const QString current = cameraTree(dialog)->currentIndex().data().toString();
        QVERIFY2(current.contains("Inspection"), qPrintable(current));
        pressAndWait({"Down", "Return"}); // cannot be accepted
        QVERIFY(dialog.isVisible());
        pressAndWait({"Alt+r"}); // rescan
        QTRY_VERIFY(!cameraTree(dialog)->currentIndex().isValid());
        QVERIFY(cameraTree(dialog)->hasFocus());
        pressAndWait({"Down", "Down", "Left", "Left", "Left"});
        const QModelIndex adapter = cameraTree(dialog)->currentIndex();
        QVERIFY(!adapter.parent().isValid() && !cameraTree(dialog)->isExpanded(adapter));
        pressAndWait({"Right", "Down", "Return"});
    }});
    QVERIFY(camera);
    QCOMPARE(camera->GetSerial(), "SIM-0001");
    QVERIFY(!select({[](QDialog &dialog) {
        activate(dialog);
        pressAndWait({"Down", "Down", "Escape"});
    }}));
}

void TestSelectCamera::tabOrder()
{
    QStringList names;
    select({[&](QDialog &dialog) {
        activate(dialog);
        pressAndWait({"Down", "Down"});
        for (int i = 0; i < 7; ++i) {
            const auto *button = qobject_cast<QPushButton *>(dialog.focusWidget());
            names << (button ? button->text().remove('&') : dialog.focusWidget()->objectName());
            pressAndWait({"Tab"});
        }
        QVERIFY(cameraTree(dialog)->hasFocus());
        pressAndWait({"Alt+d"});
        QCOMPARE(dialog.focusWidget()->objectName(), QString("deviceInfoTreeView"));
        pressAndWait({"Alt+i"});
        QCOMPARE(dialog.focusWidget()->objectName(), QString("interfaceInfoTreeView"));
        dialog.reject();
    }});
    QCOMPARE(names, (QStringList{"cameraTreeView", "interfaceInfoTreeView", "deviceInfoTreeView",
                                 "Set IP Address", "OK", "Rescan", "Cancel"}));
}

void TestSelectCamera::mouse()
{
    OrvCam::DeviceInfo *camera = select({[](QDialog &dialog) {
        activate(dialog);
        QTreeView *tree = cameraTree(dialog);
        const auto click = [&](const char *words, const QStringList &actions) {
            const QModelIndex index = rowNamed(*tree, words);
            tree->scrollTo(index);
            point(tree->viewport(), tree->visualRect(index).center(), actions);
            QTest::qWait(30);
        };
        const QStringList twice = {"click", "--repeat", "2", "--delay", "30", "1"};
        click("Microscope", {"click", "1"});
        // The border of a cell of a list without a header.
        auto *pane = dialog.findChild<QTreeView *>("interfaceInfoTreeView");
        const int width = pane->columnWidth(0);
        const QRect cell = pane->visualRect(pane->model()->index(1, 0));
        point(pane->viewport(), QPoint(cell.right() - 1, cell.bottom()), {"mousedown", "1"});
        point(pane->viewport(), QPoint(cell.right() + 29, cell.bottom()), {"mouseup", "1"});
        QTRY_COMPARE(pane->columnWidth(0), width + 30);
        QTest::qWait(QApplication::doubleClickInterval());

        click("Sorting", twice);
        QVERIFY(dialog.isVisible());
        QTest::qWait(QApplication::doubleClickInterval());
        click("\xE6\xA4\x9C\xE6\x9F\xBB", twice);
    }});
    QVERIFY(camera);
    QCOMPARE(camera->GetSerial(), "SIM-0021");
}

void TestSelectCamera::titles()
{
    QString title;
    const auto read = [&](QDialog &dialog) {
        title = dialog.windowTitle();
        dialog.reject();
    };
    const ModalVisitor visitor({read, read, read, read});
    SelectCameraA(m_system, "K\xC3\xA4mera", 0);
    QCOMPARE(title, QString::fromUtf8("K\xC3\xA4mera"));
    SelectCameraW(m_system, L"\u691C\u67FB \U0001F4F7", 0);
    QCOMPARE(title, QString::fromUtf8("\xE6\xA4\x9C\xE6\x9F\xBB \xF0\x9F\x93\xB7"));
    SelectCameraW(m_system, nullptr, 0);
    QCOMPARE(title, QString());
    SelectCameraA(m_system, nullptr, 0);
    QCOMPARE(title, QString());
    QVERIFY(visitor.isDone());
}

/// In a window of a program that knows nothing of Qt.
void TestSelectCamera::foreignParent()
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
            QVERIFY(isUnharmed(1)); // in it, the container's hidden window
            QCOMPARE(x.ownerOf(static_cast<xcb_window_t>(dialog.winId())), host);
            const QPoint distance = dialog.geometry().center() - place.center();
            QVERIFY(distance.manhattanLength() <= 2);
            activate(dialog);
            pressAndWait({"Down", "Down", "Return"});
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

void TestSelectCamera::noSuchParent()
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

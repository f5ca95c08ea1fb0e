// SPDX-License-Identifier: MIT
#include "modalvisitor.h"
#include "orvcameraguiapi.h"
#include "selectcamera.h"

#include <OrvCam.h>

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>
#include <QWindow>
#include <QtTest>

#include <xcb/xcb.h>

#include <memory>
#include <thread>

/// The picker as hosts call it, on the simulated cameras and driven as a user does: xdotool presses
/// the keys and buttons of the X server. The program is no Qt program, as far as the library can
/// tell.
class TestSelectCamera : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void makesAnApplication();
    void keyboard();
    void tabOrder();
    void mouse();
    void titles();
    void makesCameraReachable();
    void foreignParent();
    void noSuchParent();

private:
    OrvCam::DeviceInfo *select(const QList<ModalVisitor::Action> &dialogs);

    OrvCam::System *m_system = nullptr;
};

namespace {

void xdotool(const QStringList &arguments)
{
    QProcess process;
    process.start("xdotool", arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QTest::qWait(30);
}

void press(const QStringList &keys)
{
    xdotool(QStringList{"key", "--delay", "5"} + keys);
}

/// Moves the pointer there and does something.
void point(const QWidget *widget, const QPoint &place, const QStringList &actions)
{
    const QPoint global = widget->mapToGlobal(place);
    xdotool(QStringList{"mousemove", QString::number(global.x()), QString::number(global.y())} +
            actions);
}

/// Without a window manager nobody else does that.
void activate(QDialog &dialog)
{
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
}

QTreeView *cameraTree(const QDialog &dialog)
{
    return dialog.findChild<QTreeView *>("cameraTreeView");
}

QModelIndex cameraNamed(const QTreeView *tree, const QString &words)
{
    const auto found = tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole, words, 1,
                                            Qt::MatchContains | Qt::MatchRecursive);
    if (found.isEmpty())
        qFatal("There is no camera %s", qPrintable(words));
    return found.first();
}

/// A window of a program that knows nothing of Qt.
class HostWindow
{
public:
    HostWindow() : m_connection(xcb_connect(nullptr, nullptr))
    {
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        id = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, id, screen->root, 200, 150, 900, 700,
                          0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        xcb_map_window(m_connection, id);
        xcb_flush(m_connection);
    }
    ~HostWindow() { xcb_disconnect(m_connection); }

    /// It is on the screen where it was, with so many windows in it.
    bool isUnharmed(int children)
    {
        const auto tree = reply(xcb_query_tree_reply, xcb_query_tree(m_connection, id));
        const auto place = reply(xcb_get_geometry_reply, xcb_get_geometry(m_connection, id));
        const auto attributes =
            reply(xcb_get_window_attributes_reply, xcb_get_window_attributes(m_connection, id));
        return tree && place && attributes && tree->parent == tree->root &&
               tree->children_len == children && place->x == 200 && place->y == 150 &&
               place->width == 900 && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    }

    /// The window that the other one is to stay above.
    xcb_window_t ownerOf(xcb_window_t window)
    {
        const auto property =
            reply(xcb_get_property_reply,
                  xcb_get_property(m_connection, 0, window, XCB_ATOM_WM_TRANSIENT_FOR,
                                   XCB_ATOM_WINDOW, 0, 1));
        return *static_cast<xcb_window_t *>(xcb_get_property_value(property.get()));
    }

    xcb_window_t id = 0;

private:
    template<class Reply, class Cookie>
    std::unique_ptr<Reply, void (*)(void *)>
    reply(Reply *(*receive)(xcb_connection_t *, Cookie, xcb_generic_error_t **), Cookie cookie)
    {
        return {receive(m_connection, cookie, nullptr), std::free};
    }

    xcb_connection_t *m_connection;
};

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

void TestSelectCamera::makesAnApplication()
{
    QVERIFY(!QCoreApplication::instance());
    // There are no timers without an application.
    std::thread user([] {
        while (!QCoreApplication::instance() || QCoreApplication::startingUp())
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        QMetaObject::invokeMethod(
            qApp,
            [] {
                auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
                if (!dialog || !dialog->windowTitle().isEmpty())
                    qFatal("There is no picker without a title");
                dialog->reject();
            },
            Qt::QueuedConnection);
    });
    QVERIFY(!SelectCameraA(m_system, nullptr, 0));
    user.join();
    QVERIFY(qobject_cast<QApplication *>(QCoreApplication::instance()));
    const QCoreApplication *first = QCoreApplication::instance();
    QVERIFY(!select({[](QDialog &dialog) { dialog.reject(); }}));
    QCOMPARE(static_cast<const QCoreApplication *>(QCoreApplication::instance()), first);
}

void TestSelectCamera::keyboard()
{
    OrvCam::DeviceInfo *camera = select({[](QDialog &dialog) {
        activate(dialog);
        press({"Down", "Down", "Down"});
        QCOMPARE(cameraTree(dialog)->currentIndex(), cameraNamed(cameraTree(dialog), "Inspection"));
        press({"Down", "Return"}); // cannot be accepted
        QVERIFY(dialog.isVisible());
        press({"Alt+r"}); // rescan
        QTRY_VERIFY(!cameraTree(dialog)->currentIndex().isValid());
        QVERIFY(cameraTree(dialog)->hasFocus());
        press({"Down", "Down", "Left", "Left", "Left"});
        const QModelIndex adapter = cameraTree(dialog)->currentIndex();
        QVERIFY(!adapter.parent().isValid() && !cameraTree(dialog)->isExpanded(adapter));
        press({"Right", "Down", "Return"});
    }});
    QVERIFY(camera);
    QCOMPARE(camera->GetSerial(), "SIM-0001");
    QVERIFY(!select({[](QDialog &dialog) {
        activate(dialog);
        press({"Down", "Down", "Escape"});
    }}));
}

void TestSelectCamera::tabOrder()
{
    QStringList names;
    select({[&](QDialog &dialog) {
        activate(dialog);
        press({"Down", "Down"});
        for (int i = 0; i < 7; ++i) {
            const auto *button = qobject_cast<QPushButton *>(dialog.focusWidget());
            names << (button ? button->text().remove('&') : dialog.focusWidget()->objectName());
            press({"Tab"});
        }
        QVERIFY(cameraTree(dialog)->hasFocus());
        press({"Alt+d"});
        QCOMPARE(dialog.focusWidget()->objectName(), QString("deviceInfoTreeView"));
        press({"Alt+i"});
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
            const QModelIndex index = cameraNamed(tree, words);
            tree->scrollTo(index);
            point(tree->viewport(), tree->visualRect(index).center(), actions);
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
        click(QString::fromUtf8("\xE6\xA4\x9C\xE6\x9F\xBB").toUtf8(), twice);
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
    const ModalVisitor visitor({read, read, read});
    SelectCameraA(m_system, "K\xC3\xA4mera", 0);
    QCOMPARE(title, QString::fromUtf8("K\xC3\xA4mera"));
    SelectCameraW(m_system, L"\u691C\u67FB \U0001F4F7", 0);
    QCOMPARE(title, QString::fromUtf8("\xE6\xA4\x9C\xE6\x9F\xBB \xF0\x9F\x93\xB7"));
    SelectCameraW(m_system, nullptr, 0);
    QCOMPARE(title, QString());
    QVERIFY(visitor.isDone());
}

/// From a red status to an opened camera, with nothing but keys.
void TestSelectCamera::makesCameraReachable()
{
    OrvCam::DeviceInfo *camera =
        select({[](QDialog &dialog) {
                    activate(dialog);
                    press({"Down", "Down", "Down", "Down"});
                    QCOMPARE(cameraTree(dialog)->currentIndex().data().toString(),
                             QString("DualFrame 12M (Packing)"));
                    press({"Menu", "Down", "Return"}); // returns when the next dialog is closed
                    activate(dialog);
                    press({"Return"});
                },
                [](QDialog &dialog) {
                    activate(dialog);
                    press({"Return"}); // what is proposed
                    QVERIFY(!dialog.isVisible());
                }});
    QVERIFY(camera);
    QCOMPARE(camera->GetSerial(), "SIM-0003");
    QCOMPARE(camera->GetAccessState(), int32_t(OrvCam::AccessReadWrite));
    OrvCam::Device *device = OrvCam_CreateDevice(camera, nullptr, OrvCam::AccessControl);
    QVERIFY(device);
    device->Release();
}

void TestSelectCamera::foreignParent()
{
    HostWindow host;
    for (int time = 0; time < 2; ++time) {
        const ModalVisitor visitor({[&](QDialog &dialog) {
            QVERIFY(host.isUnharmed(1)); // in it, the container's hidden window
            QCOMPARE(host.ownerOf(static_cast<xcb_window_t>(dialog.winId())), host.id);
            const QPoint distance = dialog.geometry().center() - QPoint(649, 499);
            QVERIFY(distance.manhattanLength() <= 2);
            activate(dialog);
            press({"Down", "Down", "Return"});
        }});
        const OrvCam::DeviceInfo *camera = OrvGui::SelectCamera(m_system, QString(), host.id);
        QVERIFY(visitor.isDone());
        QCOMPARE(camera->GetSerial(), "SIM-0001");
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
        QVERIFY(QGuiApplication::allWindows().isEmpty());
        QTest::qWait(50);
        QVERIFY(host.isUnharmed(0));
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

QTEST_APPLESS_MAIN(TestSelectCamera)
#include "tst_selectcamera.moc"

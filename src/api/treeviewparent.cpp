// SPDX-License-Identifier: MIT
#include "api/treeviewparent.h"

#include "api/hostwindow.h"

#include <QAbstractNativeEventFilter>
#include <QChildEvent>
#include <QGuiApplication>
#include <QTimer>

#include <xcb/xcb.h>

namespace OrvGui {

namespace {

// A window container reparents its window to a hidden window and resizes it. A host's window must
// stay where it is; a window manager does not manage it again. The X server refuses to reparent a
// window to one of its own descendants. Therefore the hidden window becomes a child of the host's
// window just before the container reparents.

/// Sets the parent of the hidden window, that is of the window that becomes the parent of `window`.
class ContainerInterceptor : public QObject
{
public:
    ContainerInterceptor(QWindow *window, QWindow *outerWindow)
        : m_window(window), m_outerWindow(outerWindow)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::ChildAdded &&
            static_cast<QChildEvent *>(event)->child() == m_window) {
            if (auto *hiddenWindow = qobject_cast<QWindow *>(watched))
                hiddenWindow->setParent(m_outerWindow);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWindow *m_window;
    QWindow *m_outerWindow;
};

/// Hides the X errors of one container, which arrive asynchronously, from Qt's error output.
/// Removes itself after the last of them, because further errors are faults of the host.
class RefusedMoves : public QObject, public QAbstractNativeEventFilter
{
public:
    static void expect()
    {
        auto *filter = new RefusedMoves;
        filter->setParent(QCoreApplication::instance());
        QCoreApplication::instance()->installNativeEventFilter(filter);
        // A window that does not exist causes other errors.
        QTimer::singleShot(timeoutMs, filter, &QObject::deleteLater);
    }

    using FilterResult = std::conditional_t<(QT_VERSION < 0x060000), long, qintptr>;

    bool nativeEventFilter(const QByteArray &eventType, void *message, FilterResult *) override
    {
        if (eventType != "xcb_generic_event_t")
            return false;
        const auto *error = static_cast<xcb_generic_error_t *>(message);
        if (error->response_type != 0 || error->error_code != XCB_MATCH ||
            error->major_code != XCB_REPARENT_WINDOW)
            return false;
        if (--m_missing == 0) {
            QCoreApplication::instance()->removeNativeEventFilter(this);
            deleteLater();
        }
        return true;
    }

private:
    static const int timeoutMs = 1000;

    int m_missing = 2; ///< one for the creation of the container, one for its window
};

} // namespace

TreeViewParent::TreeViewParent() = default;

TreeViewParent::~TreeViewParent()
{
    delete container;
    delete window;
    delete m_outerWindow;
}

void TreeViewParent::wrap(unsigned long nativeId)
{
    delete window;
    window = QWindow::fromWinId(static_cast<WId>(nativeId));
    if (!window) {
        qWarning(
            "OrvCameraGuiApi: the platform \"%s\" cannot show a window inside or above another "
            "program's; it is opened as a window of its own. X11 can: QT_QPA_PLATFORM=xcb",
            qPrintable(QGuiApplication::platformName()));
        return;
    }
    m_outerWindow = QWindow::fromWinId(static_cast<WId>(nativeId));
    hostWindow = new HostWindow(nativeId, this);

    delete container;
    RefusedMoves::expect();
    {
        const ContainerInterceptor interceptor(window, m_outerWindow);
        container = QWidget::createWindowContainer(window);
    }
    // Notifies the container that its window has left, so that it does not resize the window. With
    // Qt 5 the container itself expects the event, with Qt 6 its hidden window.
    QChildEvent departure(QEvent::ChildRemoved, window);
    QCoreApplication::sendEvent(container, &departure);
    QCoreApplication::sendEvent(window->parent(), &departure);
}

} // namespace OrvGui

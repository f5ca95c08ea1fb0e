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

// A container moves the window that it is made around into a hidden window of its own, and resizes
// it. A host must not lose its window like that: a window manager, for one, would never look at it
// again. The X server refuses to move a window into one of its own inferiors. So, just before the
// container's hidden window is made, it gets the host's window for its parent.

/// Sets the parent of the window that becomes the parent of the given one.
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

/// Keeps Qt from printing the refusals of one container, which arrive later from the X server. It
/// is removed after the last of them: other refusals are errors of the host.
class RefusedMoves : public QObject, public QAbstractNativeEventFilter
{
public:
    static void expect()
    {
        auto *filter = new RefusedMoves;
        filter->setParent(QCoreApplication::instance());
        QCoreApplication::instance()->installNativeEventFilter(filter);
        // A window that does not exist is refused in another way.
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

    int m_missing = 2; ///< when the container is made, and when it is given its window
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
    // As if the window had left: the container no longer makes it as large as itself. With Qt 5 the
    // container expects that event itself, with Qt 6 by way of its hidden window.
    QChildEvent departure(QEvent::ChildRemoved, window);
    QCoreApplication::sendEvent(container, &departure);
    QCoreApplication::sendEvent(window->parent(), &departure);
}

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#include "base/screenroom.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <QWindow>

namespace OrvGui {

namespace {

QScreen *screenAt(const QPoint &point)
{
    for (QScreen *screen : QGuiApplication::screens()) {
        if (screen->geometry().contains(point))
            return screen;
    }
    return nullptr;
}

/// The real frame or, before the window manager reports it, the estimate of the style.
QMargins frameOf(const QWidget *window)
{
    const QRect inner = window->geometry();
    const QRect outer = window->frameGeometry();
    if (window->isVisible() && inner != outer)
        return QMargins(inner.left() - outer.left(), inner.top() - outer.top(),
                        outer.right() - inner.right(), outer.bottom() - inner.bottom());
    const int frame = window->style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const int title = window->style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return QMargins(frame, frame + title, frame, frame);
}

} // namespace

QScreen *screenOf(const QWidget *window)
{
    const QWidget *placed = window;
    while (placed && !placed->isVisible() && !placed->testAttribute(Qt::WA_Moved))
        placed = placed->parentWidget() ? placed->parentWidget()->window() : nullptr;
    QScreen *screen = screenAt(placed ? placed->frameGeometry().center() : QCursor::pos());
    if (!screen && placed && placed->windowHandle())
        screen = placed->windowHandle()->screen();
    return screen ? screen : QGuiApplication::primaryScreen();
}

QRect roomFor(const QWidget *window, const QScreen *screen)
{
    const QMargins frame = frameOf(window);
    return screen->availableGeometry().marginsRemoved(frame);
}

QRect roomFor(const QWidget *window)
{
    return roomFor(window, screenOf(window));
}

void keepInRoom(QWidget *window)
{
    if (!window->isWindow() || window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen))
        return;
    const QRect room = roomFor(window);
    QRect place(window->geometry().topLeft(), window->size().boundedTo(room.size()));
    place.moveRight(qMin(place.right(), room.right()));
    place.moveBottom(qMin(place.bottom(), room.bottom()));
    place.moveLeft(qMax(place.left(), room.left()));
    place.moveTop(qMax(place.top(), room.top()));
    if (place != window->geometry())
        window->setGeometry(place);
}

} // namespace OrvGui

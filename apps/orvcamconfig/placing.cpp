// SPDX-License-Identifier: MIT
#include "placing.h"

#include <base/screenroom.h>

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWidget>

namespace {

// The size of a feature tree in lines of text.
constexpr int treeWidth = 38;
constexpr int treeHeight = 47;

/// The smallest width of a window beside another one, for its preferred width.
int leastWidth(int wanted)
{
    return wanted * 2 / 3;
}

QString geometryKey(const QString &name)
{
    return name + QStringLiteral("/geometry");
}

/// `saveGeometry` stores it as well, but not in a readable form.
QString placeKey(const QString &name)
{
    return name + QStringLiteral("/place");
}

QSize wantedSize(const QWidget *window)
{
    return window->testAttribute(Qt::WA_Resized) ? window->size() : window->sizeHint();
}

void put(QWidget *window, const QPoint &place, const QSize &size)
{
    window->setGeometry(QRect(place, size));
    OrvGui::keepInRoom(window);
}

qint64 area(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

bool isOnScreens(const QRect &place)
{
    qint64 shown = 0;
    for (const QScreen *screen : QGuiApplication::screens())
        shown += area(screen->availableGeometry().intersected(place).size());
    return place.isValid() && 2 * shown >= area(place.size());
}

} // namespace

QSize Placing::treeSize(const QWidget *tree)
{
    const int line = tree->fontMetrics().height();
    return QSize(treeWidth * line, treeHeight * line).boundedTo(OrvGui::roomFor(tree).size());
}

void Placing::center(QWidget *window)
{
    const QRect room = OrvGui::roomFor(window);
    const QSize size = wantedSize(window).boundedTo(room.size());
    put(window, room.center() - QRect(QPoint(), size).center(), size);
}

void Placing::centerWith(QWidget *window, int otherWidth)
{
    const QRect room = OrvGui::roomFor(window);
    const QSize size = wantedSize(window).boundedTo(room.size());
    int width = room.width(); // at the edge of the screen, if there is no room for both
    if (size.width() + leastWidth(otherWidth) <= room.width())
        width = qMin(size.width() + otherWidth, room.width());
    const int left = QGuiApplication::isRightToLeft()
                         ? room.left() + (room.width() + width) / 2 - size.width()
                         : room.left() + (room.width() - width) / 2;
    put(window, QPoint(left, room.center().y() - size.height() / 2), size);
}

void Placing::beside(QWidget *window, const QWidget *other)
{
    const QScreen *screen = OrvGui::screenOf(other);
    const QRect room = OrvGui::roomFor(window, screen);
    const int frames = screen->availableGeometry().width() - room.width();
    const QRect place = other->geometry();
    const int roomOnRight = room.right() - frames - place.right();
    const int roomOnLeft = place.left() - frames - room.left();

    const QSize size = wantedSize(window).boundedTo(room.size());
    const int least = leastWidth(size.width());
    const bool isRightToLeft = QGuiApplication::isRightToLeft();
    const bool isOnRight = roomOnRight >= least && (!isRightToLeft || roomOnLeft < least);
    const bool isOnLeft = !isOnRight && roomOnLeft >= least;
    const int width = isOnRight  ? qMin(size.width(), roomOnRight)
                      : isOnLeft ? qMin(size.width(), roomOnLeft)
                                 : least;
    const int left = isOnRight       ? place.right() + 1 + frames
                     : isOnLeft      ? place.left() - frames - width
                     : isRightToLeft ? room.left()
                                     : room.right() + 1 - width;
    put(window, QPoint(left, place.center().y() - size.height() / 2), QSize(width, size.height()));
}

void Placing::save(const QWidget *window, QSettings *settings, const QString &name)
{
    settings->setValue(geometryKey(name), window->saveGeometry());
    settings->setValue(placeKey(name), window->frameGeometry());
}

bool Placing::restore(QWidget *window, const QSettings *settings, const QString &name)
{
    if (!isOnScreens(settings->value(placeKey(name)).toRect()) ||
        !window->restoreGeometry(settings->value(geometryKey(name)).toByteArray()))
        return false;
    OrvGui::keepInRoom(window);
    return true;
}

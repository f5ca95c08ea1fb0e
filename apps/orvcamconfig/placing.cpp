// SPDX-License-Identifier: MIT
#include "placing.h"

#include <base/screenroom.h>

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWidget>

namespace {

// Of a feature tree, in lines of text.
const int treeWidth = 42;
const int treeHeight = 53;

/// A window beside another may be narrower than it wants to be, but no more than this.
int leastWidth(int wanted)
{
    return wanted * 2 / 3;
}

QString geometryKey(const QString &name)
{
    return name + QStringLiteral("/geometry");
}

/// `saveGeometry` keeps it as well, but does not say it.
QString placeKey(const QString &name)
{
    return name + QStringLiteral("/place");
}

QSize wantedSize(const QWidget *window)
{
    return window->testAttribute(Qt::WA_Resized) ? window->size()
                                                 : window->sizeHint().expandedTo(window->size());
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
    centerWith(window, 0);
}

void Placing::centerWith(QWidget *window, int otherWidth)
{
    const QRect room = OrvGui::roomFor(window);
    const QSize size = wantedSize(window).boundedTo(room.size());
    int width = size.width();
    if (width + leastWidth(otherWidth) <= room.width())
        width = qMin(width + otherWidth, room.width());
    const int left = QGuiApplication::isRightToLeft()
                         ? room.left() + (room.width() + width) / 2 - size.width()
                         : room.left() + (room.width() - width) / 2;
    put(window, QPoint(left, room.top() + (room.height() - size.height()) / 2), size);
}

void Placing::beside(QWidget *window, const QWidget *other)
{
    const QScreen *screen = OrvGui::screenOf(other);
    const QRect room = OrvGui::roomFor(window, screen);
    const int frames = screen->availableGeometry().width() - room.width();
    const int afterOther = other->geometry().right() + 1 + frames;
    const int roomOnRight = room.right() + 1 - afterOther;
    const int roomOnLeft = other->geometry().left() - frames - room.left();

    QSize size = wantedSize(window).boundedTo(room.size());
    const int least = leastWidth(size.width());
    const bool isRightToLeft = QGuiApplication::isRightToLeft();
    int left = isRightToLeft ? room.left() : room.right() + 1 - size.width();
    if (roomOnRight >= least && (!isRightToLeft || roomOnLeft < least)) {
        size.setWidth(qMin(size.width(), roomOnRight));
        left = afterOther;
    } else if (roomOnLeft >= least) {
        size.setWidth(qMin(size.width(), roomOnLeft));
        left = other->geometry().left() - frames - size.width();
    }
    put(window, QPoint(left, other->geometry().top()), size);
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

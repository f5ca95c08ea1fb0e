// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QWidget>
#include <QtTest>

// Keyboard and mouse input through the X server.

inline void xdotool(const QStringList &arguments)
{
    QProcess process;
    process.start("xdotool", arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QCoreApplication::processEvents();
}

/// Returns when the X server has received the keys, which may be before the program does.
inline void press(const QStringList &keys)
{
    xdotool(QStringList{"key", "--delay", "0"} + keys);
}

/// Moves the pointer to the place and runs an xdotool command there.
inline void point(const QWidget *widget, const QPoint &place, const QStringList &actions = {})
{
    const QPoint global = widget->mapToGlobal(place);
    xdotool(QStringList{"mousemove", QString::number(global.x()), QString::number(global.y())} +
            actions);
}

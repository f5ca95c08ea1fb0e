// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

class QScreen;
class QWidget;

namespace OrvGui {

/// The screen that a window is on, or that it will open on: its parent's, or the pointer's.
QScreen *screenOf(const QWidget *window);

/// Where a window may be: the available area of the screen, less what a window manager puts around
/// the window.
QRect roomFor(const QWidget *window, const QScreen *screen);
QRect roomFor(const QWidget *window);

/// Makes the window no larger than its room, and moves it there if any of it is outside.
void keepInRoom(QWidget *window);

} // namespace OrvGui

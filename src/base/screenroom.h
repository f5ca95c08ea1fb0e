// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

class QScreen;
class QWidget;

namespace OrvGui {

/// The screen that a window is on, or that it will open on: its parent's, or the pointer's.
QScreen *screenOf(const QWidget *window);

/// The area for a window: the available area of the screen, less the frame that a window manager
/// adds.
QRect roomFor(const QWidget *window, const QScreen *screen);
QRect roomFor(const QWidget *window);

/// Limits the window to that area, and moves it inside if any part is outside.
void keepInRoom(QWidget *window);

} // namespace OrvGui

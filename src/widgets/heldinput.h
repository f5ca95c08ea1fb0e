// SPDX-License-Identifier: MIT
#pragma once

class QObject;
class QWidget;

/// What the user is holding down in a widget with the mouse.
///
/// For code that shows values in widgets or opens a modal window from their signals: a value that
/// is set during a drag fights with the user, and a window that takes the mouse away leaves a held
/// button or groove repeating for ever.
namespace HeldInput {

/// Whether the user drags the handle of a slider that is the widget or belongs to it.
bool isDrag(QWidget *widget);

/// Has the spin boxes and sliders of the widget forget that a mouse button is down. Anything but a
/// widget is ignored, null too.
void end(QObject *object);

} // namespace HeldInput

// SPDX-License-Identifier: MIT
#pragma once

class QObject;
class QWidget;

/// Mouse buttons that are held down in a widget.
///
/// For code that updates widgets or opens a modal window from their signals. A value that is set
/// during a drag moves the handle away from the pointer. A modal window that grabs the mouse leaves
/// a held button or groove repeating without end.
namespace HeldInput {

/// Whether the user is dragging the handle of a slider that is the widget or one of its children.
bool isDrag(QWidget *widget);

/// Releases the mouse button in the spin boxes and sliders of the widget. Other objects and null
/// are ignored.
void end(QObject *object);

} // namespace HeldInput

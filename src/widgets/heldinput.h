// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <memory>

class QWidget;

/// Mouse buttons that the user is holding down in a widget.
///
/// For code that shows values in widgets or opens a modal window from their signals. A value that
/// is set during a drag moves the handle away from the mouse. A window that takes the mouse leaves
/// a held button or groove repeating without end.
namespace HeldInput {

/// Whether the user drags the handle of a slider that is the widget or belongs to it.
bool isDrag(QWidget *widget);

/// Releases the mouse button in the spin boxes and sliders of the widget. Other objects and null
/// are ignored.
void end(QObject *object);

/// Calls `ended` when a drag of the slider ends, as long as `context` lives: with true when the
/// user has changed what `value` returns since the press. A slider that is disabled under the
/// user's hand is released as well; that is no change.
template<class Slider, class Value, class Ended>
void onDragEnd(Slider *slider, QObject *context, Value value, Ended ended)
{
    const auto atPress = std::make_shared<decltype(value())>(value());
    QObject::connect(slider, &Slider::sliderPressed, context, [=] { *atPress = value(); });
    QObject::connect(slider, &Slider::sliderReleased, context,
                     [=] { ended(slider->isEnabled() && value() != *atPress); });
}

} // namespace HeldInput

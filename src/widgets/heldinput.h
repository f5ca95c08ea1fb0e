// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <memory>

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

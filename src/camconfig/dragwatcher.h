// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <utility>

namespace OrvGui {

/// Signals the end of a drag of a slider's handle, so that a drag is one change.
///
/// Plain sliders report each position of a drag, value widgets with a slider report none. Connect
/// to this object in place of them.
class DragWatcher : public QObject
{
    Q_OBJECT

public:
    /// Returns the value that the drag changes, in any unit.
    using Value = std::function<double()>;

    /// Watches a `QSlider`, `QtOrvSlider` or `QtOrvDoubleSlider`. Compares the value at the press
    /// and at the release of the handle.
    template<class Slider>
    DragWatcher(Slider *slider, Value value, QObject *parent = nullptr)
        : QObject(parent), m_value(std::move(value)), m_atPress(m_value())
    {
        connect(slider, &Slider::sliderPressed, this, &DragWatcher::begin);
        connect(slider, &Slider::sliderReleased, this, [=] { end(slider->isEnabled()); });
    }

signals:
    /// The user has changed the value and released the handle.
    void changed();

    /// The drag has ended without a change, or because the slider has been disabled.
    void unchanged();

private:
    void begin();
    void end(bool isEnabled);

    const Value m_value;
    double m_atPress;
};

} // namespace OrvGui

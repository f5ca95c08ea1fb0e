// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/dragwatcher.h"
#include "camconfig/mappedint.h"
#include "camconfig/showing.h"
#include "widgets/heldinput.h"
#include "widgets/valuegrid.h"

#include <QWidget>

namespace OrvGui {

/// An integer in a spin box, a slider or a compound of both. A drag of a slider is one write, at
/// its end.
template<class Widget>
class MappedNumber : public MappedInt
{
public:
    MappedNumber(const MapperContext::Pointer &context, OrvGenParam::Int *param, Widget *widget,
                 IOrvCamConfigIntConverter *converter)
        : MappedInt(context, param, widget, converter), m_number(widget)
    {
    }

    void show() override
    {
        if (HeldInput::isDrag(m_number))
            return; // the end of the drag shows or writes the value
        // Reads everything before it shows anything: a receiver of the widget's signals may write.
        const Limits limits = readLimits();
        const Value held = readValue();
        const int value = ValueGrid::toInt(held.number);
        Showing showing(m_context, m_number);
        showLimits(limits, showing);
        if (held.isKnown && !showing.isOver() && m_number->value() != value)
            m_number->setValue(value);
    }

protected:
    /// Writes the value at the end of a drag.
    virtual void writeDragged() {}

    template<class Slider>
    void watchDrags(Slider *slider)
    {
        auto *watcher = new DragWatcher(
            slider, [this] { return m_number->value(); }, m_connections.receiver());
        m_connections.add(watcher, &DragWatcher::changed, [=] { dragged(slider); });
        m_connections.add(watcher, &DragWatcher::unchanged, [this] {
            const Pointer alive = shared_from_this();
            show();
        });
    }

    Widget *const m_number;

private:
    // Setting the same value again would end a repeated step, or undo the user's typing.
    void showLimits(const Limits &limits, const Showing &showing)
    {
        if (!limits.isKnown)
            return;
        if (m_number->minimum() != limits.min || m_number->maximum() != limits.max)
            m_number->setRange(limits.min, limits.max);
        if (!showing.isOver() && m_number->singleStep() != limits.step)
            m_number->setSingleStep(limits.step);
        if (!showing.isOver())
            explainLimits(limits);
    }

    /// The limits of the camera may have changed since the drag began.
    void dragged(const QPointer<QWidget> &slider)
    {
        const Pointer alive = shared_from_this();
        const Limits limits = readLimits();
        const int value = m_number->value();
        if (value >= limits.min && value <= limits.max) {
            Showing showing(m_context, m_number);
            showLimits(limits, showing);
            if (showing.isOver())
                return;
        }
        if (slider && slider->isEnabled())
            writeDragged();
    }
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "base/connections.h"
#include "widgets/captionedrow.h"
#include "widgets/qtorvdoubleslider.h"
#include "widgets/qtorvslider.h"

#include <QScopedValueRollback>
#include <QString>

/**
 * Synchronises a spin box and a slider, and emits the signals of their owner, the compound widget.
 *
 * The base of the private parts of the compound widgets. Its connections end with it, because the
 * spin box and the slider are destroyed later and may still emit signals (a spin box that loses the
 * focus commits its text).
 *
 * \tparam T the type of the value, int or double.
 */
template<class Owner, class SpinBox, class Slider, class T>
class ValuePair : public CaptionedRow
{
public:
    /** How the spin box gets a value of the slider. */
    using TakeOver = void (*)(SpinBox *, T);

    /** Adds a spin box to \a sliderWidget; it comes first in the tab order. */
    ValuePair(Owner *widget, Slider *sliderWidget)
        : CaptionedRow(widget), slider(sliderWidget), spinBox(new SpinBox(widget)), m_owner(widget)
    {
        spinBox->setObjectName(QStringLiteral("spinbox"));
    }

    /** Makes the connections; called when both have their first range. */
    void join(TakeOver takeOver)
    {
        QObject::connect(slider, &Slider::rangeChanged, spinBox, &SpinBox::setRange);
        QObject::connect(slider, &Slider::rangeChanged, m_owner, &Owner::rangeChanged);
        m_connections.add(slider, &Slider::valueChanged, [this, takeOver](T value) {
            if (!m_isMovingSlider)
                takeOver(spinBox, value);
        });
        m_connections.add(spinBox, static_cast<void (SpinBox::*)(T)>(&SpinBox::valueChanged),
                          [this](T value) {
                              if (!m_isDragged)
                                  spinBoxChanged(value);
                          });
        m_connections.add(slider, &Slider::sliderPressed, [this] { m_isDragged = true; });
        m_connections.add(slider, &Slider::sliderReleased, [this] { m_isDragged = false; });
    }

    /** Sets the range of both; the spin box gets it from the slider. */
    void setRange(T min, T max)
    {
        changeSlider([=] { slider->setRange(min, max); });
    }

    void setSingleStep(T step)
    {
        if (spinBox->singleStep() == step)
            return;
        spinBox->setSingleStep(step);
        changeSlider([=] { slider->setSingleStep(step); });
    }

    /** Changes the scale of the slider; the spin box keeps its value. */
    void setScaleType(QtOrvSlider::ScaleType type)
    {
        changeKeepingValue([=] { slider->setScaleType(type); });
    }

    void setValidate(bool on)
    {
        slider->setValidate(on);
        spinBox->setValidate(on);
    }

    Slider *const slider;
    SpinBox *const spinBox;

private:
    // In the linear scale each value has a position, and the slider determines the value, because
    // it snaps to the grid. In the others its nearest position must not replace the value.
    static bool hasPositionPerValue(const QtOrvSlider *slider)
    {
        return slider->scaleType() == QtOrvSlider::ScaleLinear;
    }
    static bool hasPositionPerValue(const QtOrvDoubleSlider *) { return false; }

    template<class Change>
    void changeSlider(Change change)
    {
        if (hasPositionPerValue(slider))
            change();
        else
            changeKeepingValue(change);
    }

    template<class Change>
    void changeKeepingValue(Change change)
    {
        const QScopedValueRollback<bool> rollback(m_isMovingSlider, true);
        change();
        if (slider->value() != spinBox->value())
            slider->setValue(spinBox->value());
    }

    void spinBoxChanged(T value)
    {
        if (hasPositionPerValue(slider))
            slider->setValue(value);
        else
            changeSlider([] {});
        // A value that has been replaced in the meantime is not announced.
        if (spinBox->value() == value)
            emit m_owner->valueChanged(spinBox->text());
        if (spinBox->value() == value)
            emit m_owner->valueChanged(value);
    }

    Owner *const m_owner;
    bool m_isDragged = false;      // during a drag the spin box only shows the slider's value
    bool m_isMovingSlider = false; // the spin box is moving the slider
    Connections m_connections;
};

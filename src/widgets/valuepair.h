// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/captionedrow.h"
#include "widgets/qtorvdoubleslider.h"
#include "widgets/qtorvslider.h"

#include <QObject>
#include <QScopedValueRollback>
#include <QString>

/**
 * Keeps a spin box and a slider in step, and speaks for their owner, the compound widget.
 *
 * The base of the private parts of the compound widgets. A QObject so that its connections end with
 * it: the parts live a little longer and may still have something to say (a spin box that loses the
 * focus takes over what was typed).
 *
 * \tparam T what the value is, int or double.
 */
template<class Owner, class SpinBox, class Slider, class T>
class ValuePair : public QObject, public CaptionedRow
{
public:
    /** How the spin box takes over a value of the slider. */
    using TakeOver = void (*)(SpinBox *, T);

    /** Adds a spin box to \a sliderWidget; the Tab key reaches them in this order. */
    ValuePair(Owner *widget, Slider *sliderWidget)
        : CaptionedRow(widget), slider(sliderWidget), spinBox(new SpinBox(widget)), owner(widget)
    {
        spinBox->setObjectName(QStringLiteral("spinbox"));
    }

    /** Makes the connections; called once the parts have their first range. */
    void join(TakeOver takeOver)
    {
        connect(slider, &Slider::rangeChanged, spinBox, &SpinBox::setRange);
        connect(slider, &Slider::rangeChanged, owner, &Owner::rangeChanged);
        connect(slider, &Slider::valueChanged, this, [this, takeOver](T value) {
            if (!leading)
                takeOver(spinBox, value);
        });
        connect(spinBox, static_cast<void (SpinBox::*)(T)>(&SpinBox::valueChanged), this,
                [this](T value) {
                    if (!dragging)
                        spinBoxChanged(value);
                });
        connect(slider, &Slider::sliderPressed, this, [this] { dragging = true; });
        connect(slider, &Slider::sliderReleased, this, [this] { dragging = false; });
    }

    /** Sets the range of both; the spin box gets it from the slider. */
    void setRange(T min, T max)
    {
        keepingValue([=] { slider->setRange(min, max); });
    }

    void setSingleStep(T step)
    {
        if (spinBox->singleStep() == step)
            return;
        spinBox->setSingleStep(step);
        keepingValue([=] { slider->setSingleStep(step); });
    }

    /** Changes the scale of the slider; the spin box keeps its value. */
    void setScaleType(QtOrvSlider::ScaleType type)
    {
        leadingSlider([=] { slider->setScaleType(type); });
    }

    void setValidate(bool on)
    {
        slider->setValidate(on);
        spinBox->setValidate(on);
    }

    Slider *const slider;
    SpinBox *const spinBox;

private:
    // In the linear scale each value has its position and what the slider makes of a value (it
    // snaps to the grid) counts. Elsewhere its nearest position must not replace the value.
    static bool answers(const QtOrvSlider *slider)
    {
        return slider->scaleType() == QtOrvSlider::ScaleLinear;
    }
    static bool answers(const QtOrvDoubleSlider *) { return false; }

    template<class Change>
    void keepingValue(Change change)
    {
        if (answers(slider))
            change();
        else
            leadingSlider(change);
    }

    template<class Change>
    void leadingSlider(Change change)
    {
        const QScopedValueRollback<bool> rollback(leading, true);
        change();
        if (slider->value() != spinBox->value())
            slider->setValue(spinBox->value());
    }

    void spinBoxChanged(T value)
    {
        if (answers(slider))
            slider->setValue(value);
        else
            keepingValue([] {});
        // A value that has been replaced since is not reported.
        if (spinBox->value() == value)
            emit owner->valueChanged(spinBox->text());
        if (spinBox->value() == value)
            emit owner->valueChanged(value);
    }

    Owner *const owner;
    bool dragging = false; // the user holds the slider: the spin box shows its value, no more
    bool leading = false;  // the spin box moves the slider
};

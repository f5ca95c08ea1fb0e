// SPDX-License-Identifier: MIT
#include "widgets/qtorvslider.h"

#include "base/connections.h"
#include "widgets/numbertext.h"
#include "widgets/sliderface.h"
#include "widgets/valueaccessibility.h"
#include "widgets/valuegrid.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QSlider>

#include <cmath>
#include <limits>
#include <utility>

class QtOrvSliderPrivate : public SliderFace
{
public:
    QtOrvSliderPrivate(QtOrvSlider *q, Qt::Orientation o);

    int snapped(int value) const;
    int valueOf(int position) const;
    int positionOf(int value) const;
    int currentValue() const { return valueOf(slider->value()); }

    void writeLabels();
    void setInnerRange();
    void setInnerStep();
    void place(int value);
    void positionChanged(int position);
    void moveOneStep(int from, int sign);
    void announce(int value);

    enum KeyStep { NoStep = 0, StepUp = 1, StepDown = 2 };
    KeyStep keyStepOf(int key) const;
    void noteKey(int key);

    QtOrvSlider *owner;
    Qt::Orientation orientation;
    bool validate = false;
    int minimum = 0;
    int maximum = 0;
    int singleStep = 1;
    double log10Coef = 100.0;
    int logOffset = 10;
    QtOrvSlider::ScaleType scaleType = QtOrvSlider::ScaleLinear;
    int lastPosition = 0;
    int lastValue = 0;
    KeyStep pendingKeyStep = NoStep;
    int valueBeforeKey = 0;
    bool isPlacing = false; // the slider is being moved to a value that is announced afterwards
    Connections connections;
};

QtOrvSliderPrivate::QtOrvSliderPrivate(QtOrvSlider *q, Qt::Orientation o)
    : SliderFace(o, q), owner(q), orientation(o)
{
    connections.add(slider, &QSlider::valueChanged, [this](int position) {
        if (!isPlacing)
            positionChanged(position);
    });
}

int QtOrvSliderPrivate::snapped(int value) const
{
    return validate ? ValueGrid::snapped(value, minimum, maximum, singleStep) : value;
}

int QtOrvSliderPrivate::valueOf(int position) const
{
    if (scaleType == QtOrvSlider::ScaleLinear)
        return position;
    if (position == slider->maximum())
        return maximum;
    if (position == slider->minimum())
        return minimum;

    if (scaleType == QtOrvSlider::ScaleSqrt)
        return snapped(ValueGrid::toInt(minimum + qint64(position) * position));
    const double distance = std::trunc(std::pow(10.0, position / log10Coef) + 0.5) - logOffset;
    return snapped(ValueGrid::toInt(minimum + distance));
}

int QtOrvSliderPrivate::positionOf(int value) const
{
    if (scaleType == QtOrvSlider::ScaleLinear)
        return snapped(value);
    if (value == maximum)
        return slider->maximum();
    if (value == minimum)
        return slider->minimum();

    const double distance = static_cast<double>(qint64(snapped(value)) - minimum);
    if (scaleType == QtOrvSlider::ScaleSqrt)
        return ValueGrid::toInt(std::sqrt(distance) + 0.5);
    return ValueGrid::toInt(std::log10(distance + logOffset) * log10Coef + 0.5);
}

void QtOrvSliderPrivate::writeLabels()
{
    minLabel->setText(NumberText::of(minimum, slider->locale()));
    maxLabel->setText(NumberText::of(maximum, slider->locale()));
}

void QtOrvSliderPrivate::setInnerRange()
{
    pendingKeyStep = NoStep;
    const qint64 span = qint64(maximum) - minimum;
    int lowest = minimum;
    int highest = maximum;
    double reached = static_cast<double>(span);

    if (scaleType == QtOrvSlider::ScaleLog10) {
        lowest = ValueGrid::toInt(log10Coef);
        highest =
            ValueGrid::toInt(std::log10(static_cast<double>(logOffset + span)) * log10Coef + 0.5);
        reached = std::trunc(std::pow(10.0, highest / log10Coef) + 0.5);
    } else if (scaleType == QtOrvSlider::ScaleSqrt) {
        lowest = 0;
        highest = ValueGrid::toInt(std::sqrt(static_cast<double>(span)) + 0.5);
        reached = static_cast<double>(highest) * highest;
    }
    if (static_cast<double>(span) > reached)
        highest = ValueGrid::toInt(qint64(highest) + 1);
    slider->setRange(lowest, highest);
}

void QtOrvSliderPrivate::setInnerStep()
{
    // The lowest int has no absolute value, which QSlider uses.
    const int innerStep = qMax(singleStep, -std::numeric_limits<int>::max());
    slider->setSingleStep(scaleType == QtOrvSlider::ScaleLinear ? innerStep : 1);
}

void QtOrvSliderPrivate::place(int value)
{
    // Only a move by a key may be extended to a whole step.
    pendingKeyStep = NoStep;
    slider->setValue(positionOf(value));
    lastPosition = slider->value();
}

void QtOrvSliderPrivate::positionChanged(int position)
{
    const KeyStep keyStep = std::exchange(pendingKeyStep, NoStep);
    const int value = valueOf(position);
    const bool isStill = value == valueBeforeKey || value == lastValue;
    if (keyStep != NoStep && isStill && scaleType != QtOrvSlider::ScaleLinear)
        moveOneStep(value, keyStep == StepUp ? 1 : -1);
    else if (value != lastValue)
        announce(value);
}

void QtOrvSliderPrivate::moveOneStep(int from, int sign)
{
    const int stepped = ValueGrid::toInt(from + qint64(sign) * singleStep);
    int value = snapped(qMax(minimum, qMin(stepped, maximum)));
    {
        const QScopedValueRollback<bool> placing(isPlacing, true);
        place(value);
    }
    // At an end of the slider no further key would move it.
    if (slider->value() == (sign > 0 ? slider->maximum() : slider->minimum()))
        value = sign > 0 ? maximum : minimum;
    if (value != lastValue)
        announce(value);
}

// A slot may move the slider again, so the value is stored first.
void QtOrvSliderPrivate::announce(int value)
{
    lastValue = value;
    emit owner->valueChanged(value);
}

QtOrvSliderPrivate::KeyStep QtOrvSliderPrivate::keyStepOf(int key) const
{
    const bool mirrored = slider->isRightToLeft();
    switch (key) {
    case Qt::Key_Left:
        return mirrored ? StepUp : StepDown;
    case Qt::Key_Right:
        return mirrored ? StepDown : StepUp;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        return StepDown;
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        return StepUp;
    default:
        return NoStep;
    }
}

void QtOrvSliderPrivate::noteKey(int key)
{
    pendingKeyStep = keyStepOf(key);
    // When several values share a position, the value is the announced one, unless the range or
    // scale has changed since.
    const bool isAnnounced = positionOf(lastValue) == slider->value();
    valueBeforeKey = isAnnounced ? snapped(lastValue) : currentValue();
}

QtOrvSlider::QtOrvSlider(QWidget *parent) : QtOrvSlider(Qt::Vertical, parent) {}

QtOrvSlider::QtOrvSlider(Qt::Orientation orientation, QWidget *parent)
    : QFrame(parent), d(new QtOrvSliderPrivate(this, orientation))
{
    ValueAccessibility::install();
    setFocusProxy(d->slider);
    connect(d->slider, &QSlider::sliderPressed, this, &QtOrvSlider::sliderPressed);
    connect(d->slider, &QSlider::sliderMoved, this, &QtOrvSlider::sliderMoved);
    connect(d->slider, &QSlider::sliderReleased, this, &QtOrvSlider::sliderReleased);
    setRange(0, 100);
    d->arrange(orientation, this);
    d->slider->installEventFilter(this);
}

QtOrvSlider::~QtOrvSlider() = default;

void QtOrvSlider::setRange(int min, int max)
{
    if (min == d->minimum && max == d->maximum)
        return;

    const int kept = d->currentValue();
    d->minimum = min;
    d->maximum = max;
    d->writeLabels();
    d->setInnerRange();
    // A slot may have set another range, which has been announced then.
    const auto isCurrent = [=] { return d->minimum == min && d->maximum == max; };
    if (isCurrent())
        emit rangeChanged(min, max);
    if (isCurrent())
        d->place(kept);
}

void QtOrvSlider::setMinimum(int min)
{
    setRange(min, d->maximum);
}

void QtOrvSlider::setMaximum(int max)
{
    setRange(d->minimum, max);
}

int QtOrvSlider::minimum() const
{
    return d->minimum;
}

int QtOrvSlider::maximum() const
{
    return d->maximum;
}

void QtOrvSlider::setValue(int value)
{
    d->place(value);
}

int QtOrvSlider::value() const
{
    const int value = d->currentValue();
    return d->scaleType == ScaleLinear ? d->snapped(value) : value;
}

void QtOrvSlider::setSingleStep(int step)
{
    const int kept = d->currentValue();
    d->singleStep = step;
    d->setInnerStep();
    d->place(kept);
}

int QtOrvSlider::singleStep() const
{
    return d->singleStep;
}

void QtOrvSlider::setScaleType(ScaleType type)
{
    const int kept = d->currentValue();
    d->scaleType = type;
    d->setInnerRange();
    d->setInnerStep();
    d->place(kept);
}

QtOrvSlider::ScaleType QtOrvSlider::scaleType() const
{
    return d->scaleType;
}

void QtOrvSlider::setLog10Coef(double positions)
{
    const int kept = d->currentValue();
    d->log10Coef = positions;
    d->setInnerRange();
    d->place(kept);
}

double QtOrvSlider::log10Coef() const
{
    return d->log10Coef;
}

void QtOrvSlider::setValidate(bool on)
{
    d->validate = on;
}

bool QtOrvSlider::validate() const
{
    return d->validate;
}

void QtOrvSlider::setMaxLabelVisiable(bool visible)
{
    d->maxLabel->setVisible(visible);
}

void QtOrvSlider::setMinLabelVisiable(bool visible)
{
    d->minLabel->setVisible(visible);
}

bool QtOrvSlider::isMaxLabelVisiable() const
{
    return d->maxLabel->isVisible();
}

bool QtOrvSlider::isMinLabelVisiable() const
{
    return d->minLabel->isVisible();
}

void QtOrvSlider::setOrientation(Qt::Orientation orientation)
{
    d->orientation = orientation;
    d->arrange(orientation, this);
}

Qt::Orientation QtOrvSlider::orientation() const
{
    return d->orientation;
}

void QtOrvSlider::setTracking(bool on)
{
    d->slider->setTracking(on);
}

bool QtOrvSlider::hasTracking() const
{
    return d->slider->hasTracking();
}

QLabel *QtOrvSlider::maxLabel() const
{
    return d->maxLabel;
}

QLabel *QtOrvSlider::minLabel() const
{
    return d->minLabel;
}

QSlider *QtOrvSlider::slider() const
{
    return d->slider;
}

bool QtOrvSlider::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != d->slider)
        return QFrame::eventFilter(watched, event);

    d->endUnseenInput(event);
    switch (event->type()) {
    case QEvent::FocusOut:
        // The slider does not receive the event, but its focus frame must be repainted.
        d->slider->update();
        emit focusOut();
        return true;
    case QEvent::KeyPress:
        d->noteKey(static_cast<QKeyEvent *>(event)->key());
        break;
    case QEvent::LayoutDirectionChange:
        d->alignLabels();
        break;
    case QEvent::LocaleChange:
        d->writeLabels();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        d->pendingKeyStep = QtOrvSliderPrivate::NoStep;
        break;
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

// SPDX-License-Identifier: MIT
#include "widgets/qtorvdoubleslider.h"

#include "base/connections.h"
#include "widgets/numbertext.h"
#include "widgets/sliderface.h"
#include "widgets/valueaccessibility.h"
#include "widgets/valuegrid.h"

#include <QEvent>
#include <QLabel>
#include <QSlider>

#include <cmath>
#include <limits>

class QtOrvDoubleSliderPrivate : public SliderFace
{
public:
    QtOrvDoubleSliderPrivate(QtOrvDoubleSlider *q, Qt::Orientation o);

    double snapped(double value) const;
    double valueOf(int position) const;
    int positionOf(double value) const;

    void writeLabels();
    void setInnerRange();
    void place(double value);

    QtOrvDoubleSlider *owner;
    Qt::Orientation orientation;
    bool validate = false;
    int decimals = 3;
    double minimum = 0.0;
    double maximum = 0.0;
    double singleStep = 1.0;
    quint32 rangeChanges = 0;

    // Greater than 1 when there are more steps than positions. The value that was set last is kept
    // then, until the slider moves from the position that belongs to it.
    double stepsPerPosition = 1.0;
    double placedValue = 0.0;
    int placedPosition = -1;
    Connections connections;
};

QtOrvDoubleSliderPrivate::QtOrvDoubleSliderPrivate(QtOrvDoubleSlider *q, Qt::Orientation o)
    : SliderFace(o, q), owner(q), orientation(o)
{
}

double QtOrvDoubleSliderPrivate::snapped(double value) const
{
    if (!validate || value == minimum || value == maximum)
        return value;

    double distance = value - minimum;
    const double fraction = ValueGrid::stepFraction(distance, singleStep);
    if (fraction >= 0.5)
        distance += singleStep - fraction * singleStep;
    else
        distance -= fraction * singleStep;
    return qMin(minimum + distance, maximum);
}

double QtOrvDoubleSliderPrivate::valueOf(int position) const
{
    if (position == placedPosition)
        return placedValue;
    if (position == slider->minimum())
        return minimum;
    if (position == slider->maximum())
        return maximum;
    return snapped(minimum + singleStep * std::floor(position * stepsPerPosition + 0.5));
}

int QtOrvDoubleSliderPrivate::positionOf(double value) const
{
    if (value == minimum)
        return slider->minimum();
    if (value == maximum)
        return slider->maximum();
    const double steps = (snapped(value) - minimum) / singleStep;
    return ValueGrid::toInt(steps / stepsPerPosition + 0.5);
}

void QtOrvDoubleSliderPrivate::writeLabels()
{
    minLabel->setText(NumberText::of(minimum, decimals, slider->locale()));
    maxLabel->setText(NumberText::of(maximum, decimals, slider->locale()));
}

void QtOrvDoubleSliderPrivate::setInnerRange()
{
    constexpr int mostPositions = std::numeric_limits<int>::max();
    const double steps = (maximum - minimum) / singleStep;
    placedPosition = -1;
    stepsPerPosition = std::isfinite(steps) ? qMax(1.0, steps / mostPositions) : 1.0;
    int highest = ValueGrid::toInt(steps + 0.5);
    if (minimum + singleStep * highest < maximum)
        highest = ValueGrid::toInt(qint64(highest) + 1);
    slider->setRange(0, highest);
}

void QtOrvDoubleSliderPrivate::place(double value)
{
    const int position = positionOf(value);
    placedPosition = -1;
    if (stepsPerPosition > 1.0 && value > minimum && value < maximum) {
        const double steps = std::floor((snapped(value) - minimum) / singleStep + 0.5);
        placedValue = qMin(minimum + singleStep * steps, maximum);
        placedPosition = position;
    }
    slider->setValue(position);
}

QtOrvDoubleSlider::QtOrvDoubleSlider(QWidget *parent) : QtOrvDoubleSlider(Qt::Vertical, parent) {}

QtOrvDoubleSlider::QtOrvDoubleSlider(Qt::Orientation orientation, QWidget *parent)
    : QFrame(parent), d(new QtOrvDoubleSliderPrivate(this, orientation))
{
    ValueAccessibility::install();
    setFocusProxy(d->slider);
    connect(d->slider, &QSlider::sliderPressed, this, &QtOrvDoubleSlider::sliderPressed);
    connect(d->slider, &QSlider::sliderMoved, this, &QtOrvDoubleSlider::sliderMoved);
    connect(d->slider, &QSlider::sliderReleased, this, &QtOrvDoubleSlider::sliderReleased);
    d->connections.add(d->slider, &QSlider::valueChanged, [this] { emit valueChanged(value()); });
    setRange(0.0, 100.0);
    d->arrange(orientation, this);
    d->slider->installEventFilter(this);
}

QtOrvDoubleSlider::~QtOrvDoubleSlider() = default;

void QtOrvDoubleSlider::setRange(double min, double max)
{
    if (min == d->minimum && max == d->maximum)
        return;

    const double kept = value();
    d->minimum = min;
    d->maximum = max;
    d->writeLabels();
    // A slot may have set another range, which has been announced then. Comparing the limits does
    // not detect that, because NaN does not equal itself.
    const quint32 change = ++d->rangeChanges;
    d->setInnerRange();
    if (d->rangeChanges == change)
        emit rangeChanged(min, max);
    if (d->rangeChanges == change)
        setValue(kept);
}

void QtOrvDoubleSlider::setMinimum(double min)
{
    setRange(min, d->maximum);
}

void QtOrvDoubleSlider::setMaximum(double max)
{
    setRange(d->minimum, max);
}

double QtOrvDoubleSlider::minimum() const
{
    return d->minimum;
}

double QtOrvDoubleSlider::maximum() const
{
    return d->maximum;
}

void QtOrvDoubleSlider::setValue(double value)
{
    d->place(value);
}

double QtOrvDoubleSlider::value() const
{
    return d->valueOf(d->slider->value());
}

void QtOrvDoubleSlider::setSingleStep(double step)
{
    const double kept = value();
    d->singleStep = step;
    d->setInnerRange();
    setValue(kept);
}

double QtOrvDoubleSlider::singleStep() const
{
    return d->singleStep;
}

void QtOrvDoubleSlider::setDecimals(int decimals)
{
    d->decimals = decimals;
}

int QtOrvDoubleSlider::decimals() const
{
    return d->decimals;
}

void QtOrvDoubleSlider::setValidate(bool on)
{
    d->validate = on;
}

bool QtOrvDoubleSlider::validate() const
{
    return d->validate;
}

void QtOrvDoubleSlider::setMaxLabelVisiable(bool visible)
{
    d->maxLabel->setVisible(visible);
}

void QtOrvDoubleSlider::setMinLabelVisiable(bool visible)
{
    d->minLabel->setVisible(visible);
}

bool QtOrvDoubleSlider::isMaxLabelVisiable() const
{
    return d->maxLabel->isVisible();
}

bool QtOrvDoubleSlider::isMinLabelVisiable() const
{
    return d->minLabel->isVisible();
}

void QtOrvDoubleSlider::setOrientation(Qt::Orientation orientation)
{
    d->orientation = orientation;
    d->arrange(orientation, this);
}

Qt::Orientation QtOrvDoubleSlider::orientation() const
{
    return d->orientation;
}

void QtOrvDoubleSlider::setTracking(bool on)
{
    d->slider->setTracking(on);
}

bool QtOrvDoubleSlider::hasTracking() const
{
    return d->slider->hasTracking();
}

QLabel *QtOrvDoubleSlider::maxLabel() const
{
    return d->maxLabel;
}

QLabel *QtOrvDoubleSlider::minLabel() const
{
    return d->minLabel;
}

QSlider *QtOrvDoubleSlider::slider() const
{
    return d->slider;
}

bool QtOrvDoubleSlider::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != d->slider)
        return QFrame::eventFilter(watched, event);

    d->endUnseenInput(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        d->alignLabels();
    if (event->type() == QEvent::LocaleChange)
        d->writeLabels();
    if (event->type() != QEvent::FocusOut)
        return QFrame::eventFilter(watched, event);

    // The slider does not receive the event, but its focus frame must be repainted.
    d->slider->update();
    emit focusOut();
    return true;
}

// SPDX-License-Identifier: MIT
#include "widgets/qtorvgainslider.h"

#include "widgets/qtorvdoublespinboxval.h"
#include "widgets/valueaccessibility.h"
#include "widgets/valuepair.h"

#include <QBoxLayout>

class QtOrvGainSliderPrivate
    : public ValuePair<QtOrvGainSlider, QtOrvDoubleSpinBoxVal, QtOrvDoubleSlider, double>
{
public:
    explicit QtOrvGainSliderPrivate(QtOrvGainSlider *q)
        : ValuePair(q, new QtOrvDoubleSlider(Qt::Horizontal, q))
    {
        row->addWidget(slider, 1);
        row->addWidget(spinBox, 0);
        spinBox->setDecimals(slider->decimals());
        spinBox->setRange(slider->minimum(), slider->maximum());
        join([](QtOrvDoubleSpinBoxVal *box, double value) { box->setValue(value); });
    }
};

QtOrvGainSlider::QtOrvGainSlider(QWidget *parent)
    : QWidget(parent), d(new QtOrvGainSliderPrivate(this))
{
    ValueAccessibility::install();
    setFocusProxy(d->slider); // the first widget in the tab order
}

QtOrvGainSlider::~QtOrvGainSlider() = default;

void QtOrvGainSlider::setValue(double value)
{
    d->spinBox->setValue(value);
}

double QtOrvGainSlider::value() const
{
    return d->spinBox->value();
}

void QtOrvGainSlider::setRange(double min, double max)
{
    d->setRange(min, max);
}

void QtOrvGainSlider::setMinimum(double min)
{
    d->setRange(min, maximum());
}

void QtOrvGainSlider::setMaximum(double max)
{
    d->setRange(minimum(), max);
}

double QtOrvGainSlider::minimum() const
{
    return d->slider->minimum();
}

double QtOrvGainSlider::maximum() const
{
    return d->slider->maximum();
}

void QtOrvGainSlider::setSingleStep(double step)
{
    d->setSingleStep(step);
}

double QtOrvGainSlider::singleStep() const
{
    return d->spinBox->singleStep();
}

void QtOrvGainSlider::setDecimals(int decimals)
{
    d->slider->setDecimals(decimals);
    d->spinBox->setDecimals(decimals);
}

int QtOrvGainSlider::decimals() const
{
    return d->spinBox->decimals();
}

void QtOrvGainSlider::setValidate(bool on)
{
    d->setValidate(on);
}

bool QtOrvGainSlider::validate() const
{
    return d->spinBox->validate();
}

void QtOrvGainSlider::setValidateTyping(bool on)
{
    d->spinBox->setValidateTyping(on);
}

bool QtOrvGainSlider::validateTyping() const
{
    return d->spinBox->validateTyping();
}

void QtOrvGainSlider::setLeftLabelText(const QString &text)
{
    d->setLeftText(text);
}

void QtOrvGainSlider::setTopLabelText(const QString &text)
{
    d->setTopText(text);
}

QString QtOrvGainSlider::leftLabelText() const
{
    return d->leftText();
}

QString QtOrvGainSlider::topLabelText() const
{
    return d->topText();
}

QLabel *QtOrvGainSlider::leftLabel() const
{
    return d->leftLabel;
}

QLabel *QtOrvGainSlider::topLabel() const
{
    return d->topLabel;
}

QtOrvDoubleSpinBoxVal *QtOrvGainSlider::spinBox() const
{
    return d->spinBox;
}

QtOrvDoubleSlider *QtOrvGainSlider::slider() const
{
    return d->slider;
}

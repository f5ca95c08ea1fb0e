// SPDX-License-Identifier: MIT
#include "widgets/qtorvsliderspinbox.h"

#include "widgets/qtorvspinboxval.h"
#include "widgets/valueaccessibility.h"
#include "widgets/valuepair.h"

#include <QBoxLayout>

class QtOrvSliderSpinBoxPrivate
    : public ValuePair<QtOrvSliderSpinBox, QtOrvSpinBoxVal, QtOrvSlider, int>
{
public:
    explicit QtOrvSliderSpinBoxPrivate(QtOrvSliderSpinBox *q)
        : ValuePair(q, new QtOrvSlider(Qt::Horizontal, q))
    {
        row->addWidget(slider, 1);
        row->addWidget(spinBox, 0);
        spinBox->setRange(slider->minimum(), slider->maximum());
        join([](QtOrvSpinBoxVal *box, int value) { box->setValue(value); });
    }
};

QtOrvSliderSpinBox::QtOrvSliderSpinBox(QWidget *parent)
    : QWidget(parent), d(new QtOrvSliderSpinBoxPrivate(this))
{
    ValueAccessibility::install();
    setFocusProxy(d->slider); // the first widget in the tab order
}

QtOrvSliderSpinBox::~QtOrvSliderSpinBox() = default;

void QtOrvSliderSpinBox::setValue(int value)
{
    d->spinBox->setValue(value);
}

int QtOrvSliderSpinBox::value() const
{
    return d->spinBox->value();
}

void QtOrvSliderSpinBox::setScaleType(QtOrvSlider::ScaleType type)
{
    d->setScaleType(type);
}

QtOrvSlider::ScaleType QtOrvSliderSpinBox::scaleType() const
{
    return d->slider->scaleType();
}

void QtOrvSliderSpinBox::setRange(int min, int max)
{
    d->setRange(min, max);
}

void QtOrvSliderSpinBox::setMinimum(int min)
{
    d->setRange(min, maximum());
}

void QtOrvSliderSpinBox::setMaximum(int max)
{
    d->setRange(minimum(), max);
}

int QtOrvSliderSpinBox::minimum() const
{
    return d->slider->minimum();
}

int QtOrvSliderSpinBox::maximum() const
{
    return d->slider->maximum();
}

void QtOrvSliderSpinBox::setSingleStep(int step)
{
    d->setSingleStep(step);
}

int QtOrvSliderSpinBox::singleStep() const
{
    return d->spinBox->singleStep();
}

void QtOrvSliderSpinBox::setValidate(bool on)
{
    d->setValidate(on);
}

bool QtOrvSliderSpinBox::validate() const
{
    return d->spinBox->validate();
}

void QtOrvSliderSpinBox::setValidateTyping(bool on)
{
    d->spinBox->setValidateTyping(on);
}

bool QtOrvSliderSpinBox::validateTyping() const
{
    return d->spinBox->validateTyping();
}

void QtOrvSliderSpinBox::setLeftLabelText(const QString &text)
{
    d->setLeftText(text);
}

void QtOrvSliderSpinBox::setTopLabelText(const QString &text)
{
    d->setTopText(text);
}

QString QtOrvSliderSpinBox::leftLabelText() const
{
    return d->leftText();
}

QString QtOrvSliderSpinBox::topLabelText() const
{
    return d->topText();
}

QLabel *QtOrvSliderSpinBox::leftLabel() const
{
    return d->leftLabel;
}

QLabel *QtOrvSliderSpinBox::topLabel() const
{
    return d->topLabel;
}

QtOrvSpinBoxVal *QtOrvSliderSpinBox::spinBox() const
{
    return d->spinBox;
}

QtOrvSlider *QtOrvSliderSpinBox::slider() const
{
    return d->slider;
}

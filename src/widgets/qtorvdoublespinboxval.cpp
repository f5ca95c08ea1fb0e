// SPDX-License-Identifier: MIT
#include "qtorvdoublespinboxval.h"

#include "valueaccessibility.h"
#include "valuegrid.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

QtOrvDoubleSpinBoxVal::QtOrvDoubleSpinBoxVal(QWidget *parent) : QDoubleSpinBox(parent)
{
    ValueAccessibility::install();
}

void QtOrvDoubleSpinBoxVal::setValidate(bool on)
{
    m_validate = on;
}

bool QtOrvDoubleSpinBoxVal::validate() const
{
    return m_validate;
}

void QtOrvDoubleSpinBoxVal::setValidateTyping(bool on)
{
    m_validateTyping = on;
}

bool QtOrvDoubleSpinBoxVal::validateTyping() const
{
    return m_validateTyping;
}

double QtOrvDoubleSpinBoxVal::doValidation(double value) const
{
    if (value == minimum() || value == maximum())
        return value;

    const double step = singleStep();
    double distance = value - minimum();
    const double rest = ValueGrid::stepFraction(distance, step) * step;
    if (rest == 0.0)
        return qMin(value, maximum());
    distance += rest >= step * 0.5 ? step - rest : -rest;
    return qMin(minimum() + distance, maximum());
}

void QtOrvDoubleSpinBoxVal::setLineEditText(const QString &text)
{
    // The spin box takes over every text that its line edit announces.
    const QSignalBlocker blocker(lineEdit());
    lineEdit()->setText(text);
}

void QtOrvDoubleSpinBoxVal::stepBy(int steps)
{
    setValue(value() + singleStep() * steps);
}

QValidator::State QtOrvDoubleSpinBoxVal::validate(QString &input, int &pos) const
{
    const QValidator::State state = QDoubleSpinBox::validate(input, pos);
    return m_validateTyping ? state : qMin(state, QValidator::Intermediate);
}

void QtOrvDoubleSpinBoxVal::setValue(double value)
{
    QDoubleSpinBox::setValue(m_validate ? doValidation(value) : value);
}

void QtOrvDoubleSpinBoxVal::keyPressEvent(QKeyEvent *event)
{
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    bool ok = false;
    double number = 0.0;
    if (enters && !m_validateTyping && singleStep() != 0.0)
        number = lineEdit()->text().toDouble(&ok);
    if (!ok) {
        QDoubleSpinBox::keyPressEvent(event);
        return;
    }
    setValue(number);
    event->accept();
}

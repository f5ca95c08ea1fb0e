// SPDX-License-Identifier: MIT
#include "qtorvspinboxval.h"

#include "valueaccessibility.h"
#include "valuegrid.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

QtOrvSpinBoxVal::QtOrvSpinBoxVal(QWidget *parent) : QSpinBox(parent)
{
    ValueAccessibility::install();
}

void QtOrvSpinBoxVal::setValidate(bool on)
{
    m_validate = on;
}

bool QtOrvSpinBoxVal::validate() const
{
    return m_validate;
}

void QtOrvSpinBoxVal::setValidateTyping(bool on)
{
    m_validateTyping = on;
}

bool QtOrvSpinBoxVal::validateTyping() const
{
    return m_validateTyping;
}

int QtOrvSpinBoxVal::doValidation(int value) const
{
    return ValueGrid::snapped(value, minimum(), maximum(), singleStep());
}

void QtOrvSpinBoxVal::setLineEditText(const QString &text)
{
    // The spin box takes over every text that its line edit announces.
    const QSignalBlocker blocker(lineEdit());
    lineEdit()->setText(text);
}

void QtOrvSpinBoxVal::stepBy(int steps)
{
    setValue(ValueGrid::toInt(value() + qint64(singleStep()) * steps));
}

QValidator::State QtOrvSpinBoxVal::validate(QString &input, int &pos) const
{
    const QValidator::State state = QSpinBox::validate(input, pos);
    return m_validateTyping ? state : qMin(state, QValidator::Intermediate);
}

void QtOrvSpinBoxVal::setValue(int value)
{
    QSpinBox::setValue(m_validate ? doValidation(value) : value);
}

void QtOrvSpinBoxVal::keyPressEvent(QKeyEvent *event)
{
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    bool ok = false;
    const int number = enters && !m_validateTyping ? lineEdit()->text().toInt(&ok, 10) : 0;
    if (!ok) {
        QSpinBox::keyPressEvent(event);
        return;
    }
    setValue(number);
    event->accept();
}

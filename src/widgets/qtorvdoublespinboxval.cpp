// SPDX-License-Identifier: MIT
#include "widgets/qtorvdoublespinboxval.h"

#include "widgets/numbertext.h"
#include "widgets/valueaccessibility.h"
#include "widgets/valuegrid.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

QtOrvDoubleSpinBoxVal::QtOrvDoubleSpinBoxVal(QWidget *parent) : QDoubleSpinBox(parent)
{
    ValueAccessibility::install();
    connect(lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString &typed) { m_typedText = typed; });
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
    // The spin box commits every text that its line edit announces.
    const QSignalBlocker blocker(lineEdit());
    lineEdit()->setText(text);
}

void QtOrvDoubleSpinBoxVal::stepBy(int steps)
{
    setValue(value() + singleStep() * steps);
}

QValidator::State QtOrvDoubleSpinBoxVal::validate(QString &input, int &pos) const
{
    NumberText::localizePoint(this, input);
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
    double number = 0.0;
    if (enters && isReadOnly()) {
        event->ignore();
    } else if (enters && !m_validateTyping && singleStep() != 0.0 &&
               NumberText::read(this, text(), &number)) {
        setValue(number);
        event->accept();
    } else {
        if (event->key() == Qt::Key_Escape && isTextPending())
            QDoubleSpinBox::setValue(value());
        QDoubleSpinBox::keyPressEvent(event);
    }
}

void QtOrvDoubleSpinBoxVal::focusOutEvent(QFocusEvent *event)
{
    // The focus returns after a menu.
    if (event->reason() == Qt::PopupFocusReason && hasFocus()) {
        lineEdit()->event(event);
        return;
    }
    if (isTextPending())
        finishTyping();
    QDoubleSpinBox::focusOutEvent(event);
}

bool QtOrvDoubleSpinBoxVal::isTextPending() const
{
    return !m_typedText.isEmpty() && text() == m_typedText;
}

void QtOrvDoubleSpinBoxVal::finishTyping()
{
    if (!isEnabled() || isReadOnly()) {
        QDoubleSpinBox::setValue(value());
        return;
    }
    QString input = text();
    int pos = int(input.size());
    double number = 0.0;
    if (!m_validateTyping && QDoubleSpinBox::validate(input, pos) == QValidator::Acceptable &&
        NumberText::read(this, cleanText(), &number) && number != value())
        setValue(number);
}

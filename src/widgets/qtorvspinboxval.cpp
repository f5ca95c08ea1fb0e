// SPDX-License-Identifier: MIT
#include "widgets/qtorvspinboxval.h"

#include "widgets/numbertext.h"
#include "widgets/valueaccessibility.h"
#include "widgets/valuegrid.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

QtOrvSpinBoxVal::QtOrvSpinBoxVal(QWidget *parent) : QSpinBox(parent)
{
    ValueAccessibility::install();
    connect(lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString &typed) { m_typedText = typed; });
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
    // The spin box commits every text that its line edit announces.
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
    int number = 0;
    if (enters && isReadOnly()) {
        event->ignore();
    } else if (enters && !m_validateTyping && NumberText::read(this, text(), &number)) {
        setValue(number);
        event->accept();
    } else {
        if (event->key() == Qt::Key_Escape && isTextPending())
            QSpinBox::setValue(value());
        QSpinBox::keyPressEvent(event);
    }
}

void QtOrvSpinBoxVal::focusOutEvent(QFocusEvent *event)
{
    // The focus returns after a menu.
    if (event->reason() == Qt::PopupFocusReason && hasFocus()) {
        lineEdit()->event(event);
        return;
    }
    if (isTextPending())
        finishTyping();
    QSpinBox::focusOutEvent(event);
}

bool QtOrvSpinBoxVal::isTextPending() const
{
    return !m_typedText.isEmpty() && text() == m_typedText;
}

void QtOrvSpinBoxVal::finishTyping()
{
    if (!isEnabled() || isReadOnly()) {
        QSpinBox::setValue(value());
        return;
    }
    QString input = text();
    int pos = int(input.size());
    int number = 0;
    if (!m_validateTyping && QSpinBox::validate(input, pos) == QValidator::Acceptable &&
        NumberText::read(this, cleanText(), &number) && number != value())
        setValue(number);
}

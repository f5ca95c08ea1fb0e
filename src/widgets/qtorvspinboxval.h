// SPDX-License-Identifier: MIT
#ifndef QTORVSPINBOXVAL_H
#define QTORVSPINBOXVAL_H

#include "orvcameraguiapi_export.h"

#include <QSpinBox>

/**
 * A QSpinBox for integers that must lie on a grid of single steps from the minimum.
 *
 * Use it for a width that has to be a multiple of 8 from its minimum, for instance. Two independent
 * switches shape it: with validation on, every value set is snapped to the grid (its two ends are
 * always allowed); with typing validation off, what is typed counts only on Return or Enter or
 * when the focus leaves, so that a camera does not see the numbers in between. Escape takes it
 * back.
 *
 * Use it on the GUI thread only.
 */
class ORVCAMERAGUIAPI_EXPORT QtOrvSpinBoxVal : public QSpinBox
{
    Q_OBJECT
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "07/20/16")
    Q_CLASSINFO("author", "The OrvCameraGuiApi developers")
    Q_PROPERTY(bool validate READ validate WRITE setValidate)
    Q_PROPERTY(bool validateTyping READ validateTyping WRITE setValidateTyping)
    Q_PROPERTY(int value READ value WRITE setValue USER true)

public:
    explicit QtOrvSpinBoxVal(QWidget *parent = nullptr);

    /** Whether values are snapped to the grid; off at first. The current value stays as it is. */
    void setValidate(bool on);
    bool validate() const;

    /** Whether a text counts while it is typed (on, as at first) or only when it is finished. */
    void setValidateTyping(bool on);
    bool validateTyping() const;

    /** The grid value next to \a value, at most the maximum; whatever validate() says. */
    int doValidation(int value) const;

    /** Shows \a text in place of the value, without looking at it; the value stays. */
    void setLineEditText(const QString &text);

    /** Goes \a steps single steps up or down; arrow keys, wheel and buttons come here too. */
    void stepBy(int steps) override;

    /** The verdict of QSpinBox, but never more than "intermediate" with typing validation off. */
    QValidator::State validate(QString &input, int &pos) const override;

public Q_SLOTS:
    /** Sets the value, snapped while validation is on, within the range. */
    void setValue(int value);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool isTextPending() const;
    void finishTyping();

    QString m_typedText;
    bool m_validate = false;
    bool m_validateTyping = true;
};

#endif

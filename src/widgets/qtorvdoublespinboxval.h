// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <QDoubleSpinBox>

/**
 * A QDoubleSpinBox for numbers that must lie on a grid of single steps from the minimum.
 *
 * Use it for an exposure time in steps of the sensor's line time, for instance. It has two
 * independent options. With validation on, every value set is snapped to the grid (its two ends are
 * always allowed). With typing validation off, typed text takes effect only on Return or Enter or
 * on loss of focus, so that a camera does not get the numbers in between. Escape restores the
 * value. A decimal point is accepted in every locale. With a single step of 0, QDoubleSpinBox
 * handles Return and Enter.
 *
 * Use it on the GUI thread only.
 */
class ORVCAMERAGUIAPI_EXPORT QtOrvDoubleSpinBoxVal : public QDoubleSpinBox
{
    Q_OBJECT
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "08/01/16")
    Q_CLASSINFO("author", "The OrvCameraGuiApi developers")
    Q_PROPERTY(bool validate READ validate WRITE setValidate)
    Q_PROPERTY(bool validateTyping READ validateTyping WRITE setValidateTyping)
    Q_PROPERTY(double value READ value WRITE setValue USER true)

public:
    explicit QtOrvDoubleSpinBoxVal(QWidget *parent = nullptr);

    /** Whether values are snapped to the grid; off by default. The current value stays as it is. */
    void setValidate(bool on);
    bool validate() const;

    /** Whether typed text takes effect at once (on, the default) or only when it is finished. */
    void setValidateTyping(bool on);
    bool validateTyping() const;

    /** The grid value nearest to \a value, at most the maximum; independent of validate(). */
    double doValidation(double value) const;

    /** Shows \a text in place of the value, unchecked; the value does not change. */
    void setLineEditText(const QString &text);

    /** Changes the value by \a steps single steps; also called for keys, wheel and buttons. */
    void stepBy(int steps) override;

    /** The result of QDoubleSpinBox, but at most "intermediate" with typing validation off. */
    QValidator::State validate(QString &input, int &pos) const override;

public Q_SLOTS:
    /** Sets the value, snapped while validation is on, within the range. */
    void setValue(double value);

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

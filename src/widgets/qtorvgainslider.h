// SPDX-License-Identifier: MIT
#ifndef QTORVGAINSLIDER_H
#define QTORVGAINSLIDER_H

#include "orvcameraguiapi_export.h"

#include <QScopedPointer>
#include <QWidget>

class QLabel;
class QtOrvDoubleSlider;
class QtOrvGainSliderPrivate;
class QtOrvDoubleSpinBoxVal;

/**
 * A floating-point spin box with a slider beside it and, if wanted, a caption to the left or above.
 *
 * Use it for gains and other real numbers that are found by moving them. Spin box and slider stay
 * in step: the spin box holds the exact value, the slider stands at the step next to it. While the
 * user drags the slider the spin box follows, but the value counts as changed only by what comes
 * after the release.
 *
 * Use it on the GUI thread only.
 */
class ORVCAMERAGUIAPI_EXPORT QtOrvGainSlider : public QWidget
{
    Q_OBJECT
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "08/01/16")
    Q_CLASSINFO("author", "The OrvCameraGuiApi developers")
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(bool validate READ validate WRITE setValidate)
    Q_PROPERTY(bool validateTyping READ validateTyping WRITE setValidateTyping)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(QString leftLabelText READ leftLabelText WRITE setLeftLabelText)
    Q_PROPERTY(QString topLabelText READ topLabelText WRITE setTopLabelText)

public:
    /** A widget over 0.0 to 100.0, without captions. */
    explicit QtOrvGainSlider(QWidget *parent = nullptr);
    ~QtOrvGainSlider() override;

    /** The value of the spin box. */
    double value() const;

    /** Sets one end and keeps the other. */
    void setMinimum(double min);
    void setMaximum(double max);
    double minimum() const;
    double maximum() const;

    /** The step of spin box and slider, and of the grid that both snap to; 1.0 at first. */
    void setSingleStep(double step);
    double singleStep() const;

    /**
     * Digits after the point, 3 at first, that the spin box shows and keeps; the labels of the
     * slider show them from the next setRange() on.
     */
    void setDecimals(int decimals);
    int decimals() const;

    /** Whether values snap to the grid of steps from the minimum; off at first. */
    void setValidate(bool on);
    bool validate() const;

    /** Whether a text counts while it is typed (on, as at first) or only when it is finished. */
    void setValidateTyping(bool on);
    bool validateTyping() const;

    /** The captions, which are also the widget's name for assistive technology; empty hides them.
     */
    void setLeftLabelText(const QString &text);
    void setTopLabelText(const QString &text);
    QString leftLabelText() const;
    QString topLabelText() const;

    /** The parts, owned by the widget; a label is null until it has been given a text. */
    QLabel *leftLabel() const;
    QLabel *topLabel() const;
    QtOrvDoubleSpinBoxVal *spinBox() const;
    QtOrvDoubleSlider *slider() const;

public Q_SLOTS:
    /** Sets the value, snapped while validation is on, within the range. */
    void setValue(double value);

    void setRange(double min, double max);

Q_SIGNALS:
    /** The value is another one; not emitted while the slider is dragged. */
    void valueChanged(double value);

    /** The same, as the spin box shows it, with prefix and suffix. */
    void valueChanged(const QString &text);

    void rangeChanged(double min, double max);

private:
    Q_DISABLE_COPY(QtOrvGainSlider)
    const QScopedPointer<QtOrvGainSliderPrivate> d;
};

#endif

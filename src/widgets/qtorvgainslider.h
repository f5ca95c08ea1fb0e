// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <QScopedPointer>
#include <QWidget>

class QLabel;
class QtOrvDoubleSlider;
class QtOrvGainSliderPrivate;
class QtOrvDoubleSpinBoxVal;

/**
 * A floating-point spin box with a slider beside it and an optional caption to the left or above.
 *
 * Use it for gains and other real numbers that are adjusted interactively. Spin box and slider show
 * the same value: the spin box holds the exact value, the slider is at the nearest step. While
 * the user drags the slider the spin box follows, but the change takes effect only on release.
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

    /** The step of spin box and slider, and of the grid of both; 1.0 by default. */
    void setSingleStep(double step);
    double singleStep() const;

    /**
     * Decimal places that the spin box shows and keeps, 3 by default; the labels of the slider use
     * a change from the next setRange() on.
     */
    void setDecimals(int decimals);
    int decimals() const;

    /** Whether values snap to the grid of steps from the minimum; off by default. */
    void setValidate(bool on);
    bool validate() const;

    /** Whether typed text takes effect at once (on, the default) or only when it is finished. */
    void setValidateTyping(bool on);
    bool validateTyping() const;

    /** The captions, also the name for assistive technology; an empty one is hidden. */
    void setLeftLabelText(const QString &text);
    void setTopLabelText(const QString &text);
    QString leftLabelText() const;
    QString topLabelText() const;

    /** The inner widgets, owned by this one; a label is null until its first text is set. */
    QLabel *leftLabel() const;
    QLabel *topLabel() const;
    QtOrvDoubleSpinBoxVal *spinBox() const;
    QtOrvDoubleSlider *slider() const;

public Q_SLOTS:
    /** Sets the value, snapped while validation is on, within the range. */
    void setValue(double value);

    void setRange(double min, double max);

Q_SIGNALS:
    /** The value has changed; not emitted while the slider is dragged. */
    void valueChanged(double value);

    /** The same with the text of the spin box, including prefix and suffix. */
    void valueChanged(const QString &text);

    void rangeChanged(double min, double max);

private:
    Q_DISABLE_COPY(QtOrvGainSlider)
    const QScopedPointer<QtOrvGainSliderPrivate> d;
};

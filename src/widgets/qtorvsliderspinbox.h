// SPDX-License-Identifier: MIT
#ifndef QTORVSLIDERSPINBOX_H
#define QTORVSLIDERSPINBOX_H

#include "orvcameraguiapi_export.h"
#include "qtorvslider.h"

#include <QScopedPointer>
#include <QWidget>

class QLabel;
class QtOrvSliderSpinBoxPrivate;
class QtOrvSpinBoxVal;

/**
 * An integer spin box with a scaled slider beside it and, if wanted, a caption to the left or
 * above.
 *
 * Use it where a value is found by moving it (a delay, a width). Spin box and slider stay in step.
 * While the user drags the slider the spin box follows, but the value counts as changed only by
 * what comes after the release. Where the scale of the slider is not linear the spin box holds the
 * exact value and the slider stands at the position next to it.
 *
 * Use it on the GUI thread only.
 */
class ORVCAMERAGUIAPI_EXPORT QtOrvSliderSpinBox : public QWidget
{
    Q_OBJECT
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "06/30/16")
    Q_CLASSINFO("author", "The OrvCameraGuiApi developers")
    Q_PROPERTY(QtOrvSlider::ScaleType scaleType READ scaleType WRITE setScaleType)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(bool validate READ validate WRITE setValidate)
    Q_PROPERTY(bool validateTyping READ validateTyping WRITE setValidateTyping)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(QString leftLabelText READ leftLabelText WRITE setLeftLabelText)
    Q_PROPERTY(QString topLabelText READ topLabelText WRITE setTopLabelText)

public:
    /** A widget over 0 to 100, without captions. */
    explicit QtOrvSliderSpinBox(QWidget *parent = nullptr);
    ~QtOrvSliderSpinBox() override;

    /** The value of the spin box. */
    int value() const;

    /** The scale of the slider, linear at first. A new one keeps the value. */
    void setScaleType(QtOrvSlider::ScaleType type);
    QtOrvSlider::ScaleType scaleType() const;

    /** Sets one end and keeps the other. */
    void setMinimum(int min);
    void setMaximum(int max);
    int minimum() const;
    int maximum() const;

    /** The step of spin box and slider, and of the grid that both snap to; 1 at first. */
    void setSingleStep(int step);
    int singleStep() const;

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
    QtOrvSpinBoxVal *spinBox() const;
    QtOrvSlider *slider() const;

public Q_SLOTS:
    /** Sets the value, snapped while validation is on, within the range. */
    void setValue(int value);

    void setRange(int min, int max);

Q_SIGNALS:
    /** The value is another one; not emitted while the slider is dragged. */
    void valueChanged(int value);

    /** The same, as the spin box shows it, with prefix and suffix. */
    void valueChanged(const QString &text);

    void rangeChanged(int min, int max);

private:
    Q_DISABLE_COPY(QtOrvSliderSpinBox)
    const QScopedPointer<QtOrvSliderSpinBoxPrivate> d;
};

#endif

// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"
#include "qtorvslider.h"

#include <QScopedPointer>
#include <QWidget>

class QLabel;
class QToolButton;
class QtOrvSpinBoxPrivate;
class QtOrvSpinBoxVal;

/**
 * An integer spin box with a small button for a pop-up scaled slider, and an optional caption to
 * the left or above.
 *
 * Use it where there is no room for a permanent slider. Spin box and slider show the same value.
 * While the user drags the slider the spin box follows, but the change takes effect only on
 * release. Where the scale of the slider is not linear the spin box holds the exact value and the
 * slider is at the nearest position.
 *
 * A vertical slider opens above the button, a horizontal one beside it, and either of them below it
 * if the screen has no room there. It closes when it loses the focus, with Escape, Return or Tab,
 * and with a second click on the button.
 *
 * Use it on the GUI thread only.
 */
class ORVCAMERAGUIAPI_EXPORT QtOrvSpinBox : public QWidget
{
    Q_OBJECT
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "06/30/16")
    Q_CLASSINFO("author", "The OrvCameraGuiApi developers")
    Q_PROPERTY(Qt::Orientation sliderOrientation READ sliderOrientation WRITE setSliderOrientation)
    Q_PROPERTY(QtOrvSlider::ScaleType scaleType READ scaleType WRITE setScaleType)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(bool validate READ validate WRITE setValidate)
    Q_PROPERTY(bool validateTyping READ validateTyping WRITE setValidateTyping)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(bool sliderButtonVisible READ isSliderButtonVisible WRITE setSliderButtonVisible)
    Q_PROPERTY(QString leftLabelText READ leftLabelText WRITE setLeftLabelText)
    Q_PROPERTY(QString topLabelText READ topLabelText WRITE setTopLabelText)

public:
    /** A widget over 0 to 100, without captions, with a vertical slider. */
    explicit QtOrvSpinBox(QWidget *parent = nullptr);
    explicit QtOrvSpinBox(Qt::Orientation sliderOrientation, QWidget *parent = nullptr);
    ~QtOrvSpinBox() override;

    /** The value of the spin box. */
    int value() const;

    /** The scale of the slider, linear by default. Changing it keeps the value. */
    void setScaleType(QtOrvSlider::ScaleType type);
    QtOrvSlider::ScaleType scaleType() const;

    /** Sets one end and keeps the other. */
    void setMinimum(int min);
    void setMaximum(int max);
    int minimum() const;
    int maximum() const;

    /** The step of spin box and slider, and of the grid of both; 1 by default. */
    void setSingleStep(int step);
    int singleStep() const;

    /** Whether values snap to the grid of steps from the minimum; off by default. */
    void setValidate(bool on);
    bool validate() const;

    /** Whether typed text takes effect at once (on, the default) or only when it is finished. */
    void setValidateTyping(bool on);
    bool validateTyping() const;

    /** Whether the button that opens the slider is shown; on by default. */
    void setSliderButtonVisible(bool visible);
    bool isSliderButtonVisible() const;

    /** The size of the pop-up slider in pixels; by default it follows the font. */
    void resizeSlider(int w, int h);
    void resizeSlider(const QSize &size);

    void setSliderOrientation(Qt::Orientation orientation);
    Qt::Orientation sliderOrientation() const;

    /** Read-only: the value cannot be edited and the button is hidden. Otherwise it is shown. */
    void setReadOnly(bool readOnly);
    bool isReadOnly() const;

    /** The captions, also the name for assistive technology; an empty one is hidden. */
    void setLeftLabelText(const QString &text);
    void setTopLabelText(const QString &text);
    QString leftLabelText() const;
    QString topLabelText() const;

    /** The inner widgets, owned by this one; a label is null until its first text is set. */
    QLabel *leftLabel() const;
    QLabel *topLabel() const;
    QtOrvSpinBoxVal *spinBox() const;
    QtOrvSlider *slider() const;
    QToolButton *toolButton() const;

public Q_SLOTS:
    /** Sets the value, snapped while validation is on, within the range. */
    void setValue(int value);

    void setRange(int min, int max);

Q_SIGNALS:
    /** The value has changed; not emitted while the slider is dragged. */
    void valueChanged(int value);

    /** The same with the text of the spin box, including prefix and suffix. */
    void valueChanged(const QString &text);

    void rangeChanged(int min, int max);

private:
    Q_DISABLE_COPY(QtOrvSpinBox)
    const QScopedPointer<QtOrvSpinBoxPrivate> d;
};

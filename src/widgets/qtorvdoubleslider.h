// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <QFrame>
#include <QScopedPointer>

class QLabel;
class QSlider;
class QtOrvDoubleSliderPrivate;

/**
 * A floating-point slider with labels for its two ends.
 *
 * Use it for gains and other real numbers. One position of its inner QSlider is one single step,
 * counted from the minimum; the last position is the maximum, even if its distance is not a whole
 * number of steps. value() after setValue() is therefore the value of the nearest position.
 *
 * Any number is a legal argument. With a minimum above the maximum the slider cannot be moved, and
 * with a step of 0 it has only its two ends. Use it on the GUI thread only.
 */
class ORVCAMERAGUIAPI_EXPORT QtOrvDoubleSlider : public QFrame
{
    Q_OBJECT
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "08/01/16")
    Q_CLASSINFO("author", "The OrvCameraGuiApi developers")
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(bool validate READ validate WRITE setValidate)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(bool tracking READ hasTracking WRITE setTracking)
    Q_PROPERTY(bool maxLabelVisiable READ isMaxLabelVisiable WRITE setMaxLabelVisiable)
    Q_PROPERTY(bool minLabelVisiable READ isMinLabelVisiable WRITE setMinLabelVisiable)

public:
    /** A vertical slider over 0.0 to 100.0. */
    explicit QtOrvDoubleSlider(QWidget *parent = nullptr);
    explicit QtOrvDoubleSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~QtOrvDoubleSlider() override;

    /** Sets one end and keeps the other; see setRange(). */
    void setMinimum(double min);
    void setMaximum(double max);
    double minimum() const;
    double maximum() const;

    /** The value of the current position, snapped while validation is on. */
    double value() const;

    /** The value of one position and the step of the grid; 1.0 by default. Keeps the value. */
    void setSingleStep(double step);
    double singleStep() const;

    /** Decimal places, 3 by default; the labels use a change from the next setRange() on. */
    void setDecimals(int decimals);
    int decimals() const;

    /** Whether values snap to the grid, from the next change on; off by default. */
    void setValidate(bool on);
    bool validate() const;

    /** Shows or hides the label of one end. */
    void setMaxLabelVisiable(bool visible);
    void setMinLabelVisiable(bool visible);

    /** Whether the label is visible at present: false until the slider itself is shown. */
    bool isMaxLabelVisiable() const;
    bool isMinLabelVisiable() const;

    void setOrientation(Qt::Orientation orientation);
    Qt::Orientation orientation() const;

    /** Whether the value changes while the slider is dragged (the default) or on its release. */
    void setTracking(bool on);
    bool hasTracking() const;

    /** The inner widgets, for styling; owned by the slider. */
    QLabel *maxLabel() const;
    QLabel *minLabel() const;
    QSlider *slider() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /** Sets both ends; the value is kept, limited to them. */
    void setRange(double min, double max);

    /** Moves the slider to the position nearest to \a value. */
    void setValue(double value);

Q_SIGNALS:
    /** The inner slider has lost the keyboard focus. */
    void focusOut();

    /** The slider has moved to another position. */
    void valueChanged(double value);

    void sliderPressed();

    /** The user is dragging the slider; \a position is that of the inner slider, not a value. */
    void sliderMoved(int position);

    void sliderReleased();

    /** The range has changed; emitted before the value is restored. */
    void rangeChanged(double min, double max);

private:
    Q_DISABLE_COPY(QtOrvDoubleSlider)
    const QScopedPointer<QtOrvDoubleSliderPrivate> d;
};

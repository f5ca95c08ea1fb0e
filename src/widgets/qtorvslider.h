// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <QFrame>
#include <QScopedPointer>

class QLabel;
class QSlider;
class QtOrvSliderPrivate;

/**
 * An integer slider for values with a wide useful range, with labels for its two ends.
 *
 * Use it where small values matter as much as large ones (exposure times, delays, periods): a
 * logarithmic or square-root scale gives small values more travel than the linear one. With
 * validation on, values snap to a grid of single steps that starts at the minimum.
 *
 * The widget uses values, its inner QSlider positions. In the linear scale both are equal; in the
 * others several values may share a position, so that value() after setValue() is the value of the
 * nearest position. An arrow or page key moves a logarithmic or square-root slider by at least one
 * single step, unless it is at its end.
 *
 * Any int is a legal argument. With a minimum above the maximum the slider cannot be moved. Use it
 * on the GUI thread only.
 */
class ORVCAMERAGUIAPI_EXPORT QtOrvSlider : public QFrame
{
    Q_OBJECT
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "07/15/16")
    Q_CLASSINFO("author", "The OrvCameraGuiApi developers")
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
    Q_PROPERTY(ScaleType scaleType READ scaleType WRITE setScaleType)
    Q_PROPERTY(double log10Coef READ log10Coef WRITE setLog10Coef)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(bool validate READ validate WRITE setValidate)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(bool tracking READ hasTracking WRITE setTracking)
    Q_PROPERTY(bool maxLabelVisiable READ isMaxLabelVisiable WRITE setMaxLabelVisiable)
    Q_PROPERTY(bool minLabelVisiable READ isMinLabelVisiable WRITE setMinLabelVisiable)

public:
    /** The distribution of the values over the travel of the slider. */
    enum ScaleType {
        ScaleLinear = 0, ///< Evenly.
        ScaleLog10 = 1,  ///< By the decimal logarithm of the distance from the minimum.
        ScaleSqrt = 2    ///< By the square root of the distance from the minimum.
    };
    Q_ENUM(ScaleType)

    /** A vertical slider over 0 to 100. */
    explicit QtOrvSlider(QWidget *parent = nullptr);
    explicit QtOrvSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~QtOrvSlider() override;

    /** Sets one end and keeps the other; see setRange(). */
    void setMinimum(int min);
    void setMaximum(int max);
    int minimum() const;
    int maximum() const;

    /** The value of the current position, snapped while validation is on. */
    int value() const;

    /**
     * The step of the grid; in the linear scale also the step of the arrow keys. 1 by default. The
     * value is kept where the new grid contains it.
     */
    void setSingleStep(int step);
    int singleStep() const;

    /** Changes the scale; the value is kept where the new scale has a position for it. */
    void setScaleType(ScaleType type);
    ScaleType scaleType() const;

    /** Positions per decade in the logarithmic scale; more are finer. 100 by default. */
    void setLog10Coef(double positions);
    double log10Coef() const;

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
    void setRange(int min, int max);

    /** Moves the slider to the position of \a value, or to the nearer end. */
    void setValue(int value);

Q_SIGNALS:
    /** The inner slider has lost the keyboard focus. */
    void focusOut();

    /**
     * The slider has moved to another value. In the linear scale \a value is the position itself,
     * even where value() returns the nearest grid value because of validation.
     */
    void valueChanged(int value);

    void sliderPressed();

    /** The user is dragging the slider; \a position is that of the inner slider, not a value. */
    void sliderMoved(int position);

    void sliderReleased();

    /** The range has changed; emitted before the value is restored. */
    void rangeChanged(int min, int max);

private:
    Q_DISABLE_COPY(QtOrvSlider)
    const QScopedPointer<QtOrvSliderPrivate> d;
};

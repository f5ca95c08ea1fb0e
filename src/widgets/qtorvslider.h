// SPDX-License-Identifier: MIT
#ifndef QTORVSLIDER_H
#define QTORVSLIDER_H

#include "orvcameraguiapi_export.h"

#include <QFrame>
#include <QScopedPointer>

class QLabel;
class QSlider;
class QtOrvSliderPrivate;

/**
 * An integer slider for values with a wide useful range, with its two ends written beside it.
 *
 * Use it where the small values matter as much as the large ones (exposure times, delays, periods):
 * its scale is linear, logarithmic or a square root, so that small values get more travel. With
 * validation on, values snap to a grid of single steps that starts at the minimum.
 *
 * The widget speaks in values, its inner QSlider in positions. They are the same in the linear
 * scale; in the others several values may share a position, so that value() after setValue() is
 * the value of the nearest position. An arrow or page key always moves a logarithmic or
 * square-root slider by at least one single step, as long as there is room for it.
 *
 * Any int is a legal argument. With a minimum above the maximum the slider can't be moved. Use it
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
    /** How values are spread over the travel of the slider. */
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
     * The step of the grid; in the linear scale also the step of the arrow keys. 1 at first. The
     * value is kept, as far as the new grid has it.
     */
    void setSingleStep(int step);
    int singleStep() const;

    /** Changes the scale and keeps the value, as far as the new scale has a position for it. */
    void setScaleType(ScaleType type);
    ScaleType scaleType() const;

    /** Positions per decade in the logarithmic scale; more are finer. 100 at first. */
    void setLog10Coef(double positions);
    double log10Coef() const;

    /** Whether values snap to the grid. Off at first; counts from the next change of value on. */
    void setValidate(bool on);
    bool validate() const;

    /** Shows or hides the label of one end. */
    void setMaxLabelVisiable(bool visible);
    void setMinLabelVisiable(bool visible);

    /** Whether the label can be seen just now: false until the slider itself is shown. */
    bool isMaxLabelVisiable() const;
    bool isMinLabelVisiable() const;

    void setOrientation(Qt::Orientation orientation);
    Qt::Orientation orientation() const;

    /** Whether the value follows while the slider is dragged (as at first) or on release. */
    void setTracking(bool on);
    bool hasTracking() const;

    /** The parts, to style them; the slider owns them. */
    QLabel *maxLabel() const;
    QLabel *minLabel() const;
    QSlider *slider() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /** Sets both ends and keeps the value, as far as it lies between them. */
    void setRange(int min, int max);

    /** Moves the slider to the position of \a value, or to the end next to it. */
    void setValue(int value);

Q_SIGNALS:
    /** The inner slider has lost the keyboard focus. */
    void focusOut();

    /**
     * The slider has moved to another value. In the linear scale it is the position itself, also
     * where validation makes value() the grid value next to it.
     */
    void valueChanged(int value);

    void sliderPressed();

    /** The user drags the slider; \a position is that of the inner slider, not a value. */
    void sliderMoved(int position);

    void sliderReleased();

    /** The range is another one; emitted before the value is put back. */
    void rangeChanged(int min, int max);

private:
    Q_DISABLE_COPY(QtOrvSlider)
    const QScopedPointer<QtOrvSliderPrivate> d;
};

#endif

// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class QEvent;
class QFrame;
class QLabel;
class QSlider;

/**
 * The layout of a value slider: an inner slider with a label at either end.
 *
 * The base of the private parts of QtOrvSlider and QtOrvDoubleSlider. The frame owns the widgets.
 */
struct SliderFace
{
    SliderFace(Qt::Orientation orientation, QFrame *frame);

    /** Sets the orientation, aligns the labels and rebuilds the layout. */
    void arrange(Qt::Orientation orientation, QFrame *frame);

    /**
     * Aligns the labels with the ends of the slider, according to its orientation and direction.
     */
    void alignLabels();

    /**
     * Filters the slider's events; ends a drag or a repeated step when the slider will not see its
     * end.
     */
    void endUnseenInput(const QEvent *event);

    QLabel *maxLabel;
    QLabel *minLabel;
    QSlider *slider;
};

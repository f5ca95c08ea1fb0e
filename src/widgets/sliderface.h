// SPDX-License-Identifier: MIT
#ifndef SLIDERFACE_H
#define SLIDERFACE_H

#include <Qt>

class QFrame;
class QLabel;
class QSlider;

/**
 * What a value slider looks like: an inner slider with a label at either end.
 *
 * The base of the private parts of QtOrvSlider and QtOrvDoubleSlider. The frame owns the widgets.
 */
struct SliderFace
{
    SliderFace(Qt::Orientation orientation, QFrame *frame);

    /** Aligns the labels, turns the slider and lays the frame out anew. */
    void arrange(Qt::Orientation orientation, QFrame *frame);

    QLabel *maxLabel;
    QLabel *minLabel;
    QSlider *slider;
};

#endif

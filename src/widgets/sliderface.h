// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class QEvent;
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

    /** Turns the slider, aligns the labels and lays the frame out anew. */
    void arrange(Qt::Orientation orientation, QFrame *frame);

    /** Aligns the labels with the ends of the slider, as its orientation and direction have it. */
    void alignLabels();

    /** Given the slider's events, ends a drag or a repeated step whose end the slider can't see. */
    void endUnseenInput(const QEvent *event);

    QLabel *maxLabel;
    QLabel *minLabel;
    QSlider *slider;
};

// SPDX-License-Identifier: MIT
#include "widgets/sliderface.h"

#include "widgets/heldinput.h"

#include <QBoxLayout>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QSlider>

SliderFace::SliderFace(Qt::Orientation orientation, QFrame *frame)
    : maxLabel(new QLabel(frame))
    , minLabel(new QLabel(frame))
    , slider(new QSlider(orientation, frame))
{
    maxLabel->setObjectName(QStringLiteral("labelMax"));
    minLabel->setObjectName(QStringLiteral("labelMin"));
    slider->setObjectName(QStringLiteral("slider"));
}

void SliderFace::arrange(Qt::Orientation orientation, QFrame *frame)
{
    const bool vertical = orientation == Qt::Vertical;
    slider->setOrientation(orientation);
    alignLabels();

    delete frame->layout();
    auto *column = new QVBoxLayout(frame);
    column->setObjectName(QStringLiteral("layoutV"));
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    auto *row = new QHBoxLayout;
    row->setObjectName(QStringLiteral("layoutH"));
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(vertical ? 0 : 6);

    if (vertical) {
        row->addWidget(slider);
        column->addWidget(maxLabel);
        column->addLayout(row);
        column->addWidget(minLabel);
    } else {
        row->addWidget(minLabel);
        row->addWidget(maxLabel);
        column->addWidget(slider);
        column->addLayout(row);
    }
}

// A label aligns its text by the direction of the text, and numbers are left to right.
void SliderFace::alignLabels()
{
    Qt::Alignment forMax = Qt::AlignHCenter;
    Qt::Alignment forMin = Qt::AlignHCenter;
    if (slider->orientation() == Qt::Horizontal) {
        forMax = slider->isRightToLeft() ? Qt::AlignLeft : Qt::AlignRight;
        forMin = slider->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    }
    maxLabel->setAlignment(forMax | Qt::AlignVCenter);
    minLabel->setAlignment(forMin | Qt::AlignVCenter);
}

void SliderFace::endUnseenInput(const QEvent *event)
{
    // A groove starts to repeat after its first step only, and a slot may have hidden or disabled
    // the slider by then.
    const bool repeats =
        event->type() == QEvent::Timer && !(slider->isVisible() && slider->isEnabled());
    // A slider that is disabled and enabled again still follows the mouse button that holds its
    // handle.
    const bool isBack = event->type() == QEvent::EnabledChange && slider->isEnabled();
    if (event->type() != QEvent::Hide && !isBack && !repeats)
        return;
    slider->setSliderDown(false);
    HeldInput::end(slider);
}

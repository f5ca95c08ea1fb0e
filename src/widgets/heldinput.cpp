// SPDX-License-Identifier: MIT
#include "widgets/heldinput.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QMouseEvent>

namespace HeldInput {

namespace {

template<class Kind>
QList<Kind *> partsOf(QWidget *widget)
{
    QList<Kind *> parts = widget->findChildren<Kind *>();
    if (auto *self = qobject_cast<Kind *>(widget))
        parts.append(self);
    return parts;
}

/// Ends the repetition of steps while the groove of a slider is held, for which QAbstractSlider has
/// only protected functions. Without that, the repetition also continues after a release during the
/// first step.
class RepeatedStep : public QAbstractSlider
{
public:
    static void end(QAbstractSlider *slider)
    {
        const auto setAction = &RepeatedStep::setRepeatAction;
        (slider->*setAction)(SliderNoAction, 0, 0);
    }
};

void releaseMouse(QWidget *widget)
{
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    // Sent to this widget only; QApplication would pass an ignored event to the parents.
    static_cast<QObject *>(widget)->event(&release);
}

} // namespace

bool isDrag(QWidget *widget)
{
    for (const QAbstractSlider *slider : partsOf<QAbstractSlider>(widget)) {
        if (slider->isSliderDown())
            return true;
    }
    return false;
}

void end(QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget)
        return;
    for (QAbstractSlider *slider : partsOf<QAbstractSlider>(widget)) {
        if (slider->isSliderDown())
            continue;
        releaseMouse(slider);
        RepeatedStep::end(slider);
    }
    for (QAbstractSpinBox *spinBox : partsOf<QAbstractSpinBox>(widget))
        releaseMouse(spinBox);
}

} // namespace HeldInput

// SPDX-License-Identifier: MIT
#include "heldinput.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QCoreApplication>
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

void releaseMouse(QWidget *widget)
{
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &release);
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
        if (!slider->isSliderDown())
            releaseMouse(slider);
    }
    for (QAbstractSpinBox *spinBox : partsOf<QAbstractSpinBox>(widget))
        releaseMouse(spinBox);
}

} // namespace HeldInput

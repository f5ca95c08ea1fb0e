// SPDX-License-Identifier: MIT
#include "camconfig/wheelguard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>

namespace OrvGui {

void WheelGuard::guard(QWidget *widget)
{
    if (auto *tabs = qobject_cast<QTabWidget *>(widget))
        return guardOne(tabs->tabBar());
    guardOne(widget);
    for (QWidget *part : widget->findChildren<QWidget *>())
        guardOne(part);
}

// Not every QAbstractSlider, because the scroll bar of a combo box's list is one, too.
void WheelGuard::guardOne(QWidget *widget)
{
    if (!qobject_cast<QComboBox *>(widget) && !qobject_cast<QAbstractSpinBox *>(widget) &&
        !qobject_cast<QSlider *>(widget) && !qobject_cast<QTabBar *>(widget))
        return;
    if (widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
        return false;
    event->ignore(); // so that Qt passes it to the parent
    return true;
}

} // namespace OrvGui

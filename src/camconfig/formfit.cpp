// SPDX-License-Identifier: MIT
#include "formfit.h"

#include "qtorvspinbox.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QWindow>

namespace {

/// Without what a window manager puts around a window.
QSize roomFor(const QWidget *window)
{
    const QWindow *handle = window->windowHandle();
    const QScreen *screen = handle ? handle->screen() : QGuiApplication::primaryScreen();
    const int frame = window->style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const int title = window->style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return screen->availableSize() - QSize(2 * frame, 2 * frame + title);
}

/// Has the size hint know of all changes. Layouts of hidden widgets do not tell their parents.
void activateLayouts(QWidget *widget)
{
    for (QObject *child : widget->children()) {
        if (child->isWidgetType())
            activateLayouts(static_cast<QWidget *>(child));
    }
    if (widget->layout())
        widget->layout()->activate();
}

} // namespace

void FormFit::align(const QList<QLabel *> &labels)
{
    int width = 0;
    for (const QLabel *label : labels)
        width = qMax(width, label->sizeHint().width());
    for (QLabel *label : labels)
        label->setMinimumWidth(width);
}

void FormFit::fitUprightSlider(QtOrvSpinBox *spinBox)
{
    const QLabel *label = spinBox->leftLabel();
    spinBox->resizeSlider(spinBox->height(), spinBox->width() - (label ? label->width() : 0));
}

void FormFit::growToFit(QWidget *window, const QScrollArea *area)
{
    activateLayouts(area->widget());
    const QSize room = roomFor(window);
    QSize wanted = area->widget()->sizeHint();
    const int bar = area->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const bool isTooHigh = wanted.height() > room.height();
    const bool isTooWide = wanted.width() > room.width();
    wanted += QSize(isTooHigh ? bar : 0, isTooWide ? bar : 0);
    window->resize(window->size().expandedTo(wanted.boundedTo(room)));
}

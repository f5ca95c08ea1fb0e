// SPDX-License-Identifier: MIT
#include "base/formfit.h"

#include "base/screenroom.h"

#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

using namespace OrvGui;

namespace {

constexpr char scrollAreaName[] = "screenScrollArea";

/// Updates the size hint. Layouts of hidden widgets do not notify their parents.
void activateLayouts(QWidget *widget)
{
    for (QObject *child : widget->children()) {
        if (child->isWidgetType())
            activateLayouts(static_cast<QWidget *>(child));
    }
    if (widget->layout())
        widget->layout()->activate();
}

bool isTooLarge(QWidget *window)
{
    activateLayouts(window);
    const QLayout *layout = window->layout();
    const bool isFixed = layout->sizeConstraint() == QLayout::SetFixedSize;
    const QSize least = isFixed ? layout->totalSizeHint() : layout->totalMinimumSize();
    const QSize room = roomFor(window).size();
    return least.width() > room.width() || least.height() > room.height();
}

QScrollArea *makeScrollable(QWidget *window)
{
    auto *contents = new QWidget(window);
    contents->setLayout(window->layout()); // reparents the widgets, too
    window->setMinimumSize(QSize(0, 0));   // a layout with a fixed size has set it
    window->setMaximumSize(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    auto *area = new QScrollArea(window);
    area->setObjectName(QLatin1String(scrollAreaName));
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(contents);
    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(QMargins());
    layout->addWidget(area);
    return area;
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

int FormFit::textWidth(const QWidget *widget, const QString &text)
{
    const int flags = Qt::TextSingleLine | Qt::TextIncludeTrailingSpaces;
    return widget->fontMetrics().size(flags, text).width();
}

void FormFit::limitWidth(QWidget *widget, int width)
{
    const bool isPadded = widget->style()->inherits("QStyleSheetStyle");
    widget->setMaximumWidth(isPadded ? qMax(width, widget->sizeHint().width()) : width);
}

void FormFit::growToFit(QWidget *window, const QScrollArea *area)
{
    activateLayouts(area->widget());
    const QSize room = roomFor(window).size();
    QSize wanted = area->widget()->sizeHint();
    const int bar = area->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const bool isTooHigh = wanted.height() > room.height();
    const bool isTooWide = wanted.width() > room.width();
    wanted += QSize(isTooHigh ? bar : 0, isTooWide ? bar : 0);
    window->resize(window->size().expandedTo(wanted.boundedTo(room)));
    if (window->isVisible())
        keepInRoom(window);
}

void FormFit::fitToScreen(QWidget *window)
{
    if (!window->isWindow())
        return;
    auto *area =
        window->findChild<QScrollArea *>(QLatin1String(scrollAreaName), Qt::FindDirectChildrenOnly);
    if (!area && isTooLarge(window))
        area = makeScrollable(window);
    if (area)
        growToFit(window, area);
    window->resize(window->size().boundedTo(roomFor(window).size()));
}

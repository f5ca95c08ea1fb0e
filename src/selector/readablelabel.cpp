// SPDX-License-Identifier: MIT
#include "selector/readablelabel.h"

#include "base/readablecolors.h"

#include <QPainter>
#include <QStyle>

void ReadableLabel::paintEvent(QPaintEvent *)
{
    QPalette colors = palette();
    const QColor background = colors.color(backgroundRole());
    colors.setColor(foregroundRole(),
                    OrvGui::readableOn(background, colors.color(foregroundRole())));
    QPainter painter(this);
    drawFrame(&painter);
    const auto place = QStyle::visualAlignment(layoutDirection(), alignment());
    style()->drawItemText(&painter, contentsRect(), int(place), colors, isEnabled(), text(),
                          foregroundRole());
}

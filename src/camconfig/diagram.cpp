// SPDX-License-Identifier: MIT
#include "camconfig/diagram.h"

#include "camconfig/diagramdrawing.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QVariant>

namespace OrvGui {

Diagram::Diagram(QWidget *parent) : QLabel(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Diagram::setPicture(const QString &resource)
{
    const QPixmap bitmap(resource);
    m_picture = resource;
    m_bitmapKey = bitmap.cacheKey();
    setPixmap(bitmap);
}

bool Diagram::isDrawn() const
{
    return DiagramDrawing::knows(m_picture) &&
           property("pixmap").value<QPixmap>().cacheKey() == m_bitmapKey;
}

QSize Diagram::sizeHint() const
{
    if (!isDrawn())
        return QLabel::sizeHint();
    const QSize frame = size() - contentsRect().size();
    return DiagramDrawing(fontMetrics(), palette(), nullptr).size(m_picture) + frame;
}

void Diagram::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    updateGeometry();
    update();
}

void Diagram::paintEvent(QPaintEvent *event)
{
    if (!isDrawn()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    painter.setRenderHint(QPainter::Antialiasing);
    const DiagramDrawing drawing(fontMetrics(), palette(), &painter);
    const QRect place = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                            drawing.size(m_picture), contentsRect());
    painter.translate(place.topLeft());
    drawing.draw(m_picture);
}

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPalette>

class QPainter;

namespace OrvGui {

/// The drawings that replace the pictures. Lengths next to a text fit the text, all others scale
/// with the font.
class DiagramDrawing
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::DiagramDrawing)

public:
    /// Draws with the painter. Without one, only `size` may be called.
    DiagramDrawing(const QFontMetrics &metrics, const QPalette &palette, QPainter *painter);

    /// The name of the picture's resource. False if there is no drawing for it.
    static bool knows(const QString &picture);
    QSize size(const QString &picture) const;
    void draw(const QString &picture) const;

private:
    QSizeF pulseSize() const;
    void drawPulse() const;
    QSizeF strobesSize() const;
    void drawStrobes(bool isExposure1, bool isExposure2) const;
    void drawStrobe(const QString &name, qreal top, qreal start) const;
    QSizeF rangeSize() const;
    void drawRange() const;

    qreal length(qreal units) const { return units * m_unit; }
    qreal lengthFor(qreal units, const QString &text) const;
    qreal headWidth() const;
    qreal delayWidth() const;
    qreal pulseWidth() const;
    qreal exposureWidth() const;
    qreal readoutWidth() const;

    void drawSignal(const QPolygonF &line) const;
    void drawHelpLine(const QPointF &from, const QPointF &to) const;
    void drawAxis(const QPointF &from, const QPointF &to) const;
    void drawSpan(qreal from, qreal to, qreal y, const QString &text) const;
    void drawArrowHead(const QPointF &tip, const QPointF &direction) const;
    void drawCell(const QRectF &cell, const QColor &color, const QString &text) const;
    void drawText(const QRectF &area, int alignment, const QString &text) const;

    const QFontMetrics m_metrics;
    QPainter *const m_painter;
    qreal m_unit;   ///< pixels per unit of length
    qreal m_height; ///< of a line of text
    QColor m_ink, m_signal, m_help, m_exposure, m_readout;
};

} // namespace OrvGui

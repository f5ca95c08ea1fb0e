// SPDX-License-Identifier: MIT
#include "camconfig/diagramdrawing.h"

#include <QPainter>
#include <QtMath>

#include <initializer_list>

namespace OrvGui {

namespace {

const qreal ordinaryHeight = 15; // the line height of the font for which a unit is one pixel

const qreal margin = 8;
const qreal textMargin = 12; // beside a text between two lines
const qreal cellMargin = 4;  // above and below the text in a cell
const qreal arrow = 5;
const qreal spanGap = 12; // from a line to the arrow that spans a part of it

const qreal pulseHeight = 48;
const qreal pulseLead = 24;
const qreal pulseTail = 30;

const qreal strobeHeight = 24;
const qreal strobeGap = 12;
const qreal strobeLead = 12;

const QPointF bends[] = {{40, 44}, {88, 72}, {150, 94}}; // from the axes' origin
const QPointF lineEnd(190, 102);
const QPointF axesEnd(196, 118);

const QLatin1String pulsePicture(":/images/res/pulseimage.bmp");
const QLatin1String rangePicture(":/images/res/wdr.bmp");

struct StrobePicture
{
    QLatin1String name;
    bool isExposure1, isExposure2;
};

const StrobePicture *strobePicture(const QString &name)
{
    static const StrobePicture pictures[] = {
        {QLatin1String(":/images/res/strobeBothExp.bmp"), true, true},
        {QLatin1String(":/images/res/strobe1Exp_strobe2Read.bmp"), true, false},
        {QLatin1String(":/images/res/strobe1Read_strobe2Exp.bmp"), false, true},
        {QLatin1String(":/images/res/strobeBothRead.bmp"), false, false},
    };
    for (const StrobePicture &picture : pictures) {
        if (picture.name == name)
            return &picture;
    }
    return nullptr;
}

QColor transparent(QColor color, qreal alpha)
{
    color.setAlpha(qRound(color.alpha() * alpha));
    return color;
}

} // namespace

DiagramDrawing::DiagramDrawing(const QFontMetrics &metrics, const QPalette &palette,
                               QPainter *painter)
    : m_metrics(metrics), m_painter(painter), m_height(metrics.height())
{
    // Large letters need longer lengths, but less than in proportion: screens do not grow with the
    // font.
    m_unit = (1 + m_height / ordinaryHeight) / 2;
    m_ink = palette.color(QPalette::WindowText);
    const bool isEnabled = palette.currentColorGroup() != QPalette::Disabled;
    const bool isDark = m_ink.lightnessF() > 0.5; // a style sheet may set the text colour alone
    m_signal = isDark ? QColor(0x6a, 0xb4, 0xee) : QColor(0x1f, 0x74, 0xbd);
    m_exposure = QColor(0xe0, 0x99, 0x2f, 0x60);
    if (!isEnabled)
        m_signal = m_exposure = m_ink;
    m_help = transparent(m_ink, 0.4);
    m_exposure = isEnabled ? m_exposure : transparent(m_ink, 0.15);
    m_readout = transparent(m_ink, 0.1);
}

bool DiagramDrawing::knows(const QString &picture)
{
    return picture == pulsePicture || picture == rangePicture || strobePicture(picture);
}

QSize DiagramDrawing::size(const QString &picture) const
{
    const QSizeF size = picture == pulsePicture   ? pulseSize()
                        : picture == rangePicture ? rangeSize()
                                                  : strobesSize();
    return QSize(qCeil(size.width()), qCeil(size.height()));
}

void DiagramDrawing::draw(const QString &picture) const
{
    if (picture == pulsePicture)
        drawPulse();
    else if (picture == rangePicture)
        drawRange();
    else if (const StrobePicture *strobes = strobePicture(picture))
        drawStrobes(strobes->isExposure1, strobes->isExposure2);
}

qreal DiagramDrawing::lengthFor(qreal units, const QString &text) const
{
    const int textWidth = m_metrics.size(Qt::TextSingleLine, text).width();
    return qMax(length(units), textWidth + length(textMargin));
}

// Pulse: width, delay and period

QSizeF DiagramDrawing::pulseSize() const
{
    const qreal period = lengthFor(66, tr("Width")) + lengthFor(96, tr("Delay"));
    return QSizeF(length(2 * margin + pulseLead + pulseTail) +
                      qMax(period, lengthFor(0, tr("Period"))),
                  length(2 * margin + pulseHeight + 2 * spanGap + 2 * arrow) + 2 * m_height);
}

void DiagramDrawing::drawPulse() const
{
    const qreal left = length(margin);
    const qreal right = pulseSize().width() - length(margin);
    const qreal rise = left + length(pulseLead);
    const qreal nextRise = right - length(pulseTail);
    const qreal fall = rise + lengthFor(66, tr("Width"));
    const qreal high = length(margin);
    const qreal low = high + length(pulseHeight);
    const qreal firstSpan = low + length(spanGap);
    const qreal secondSpan = firstSpan + length(spanGap + arrow) + m_height;

    drawHelpLine({rise, high}, {rise, secondSpan + length(arrow)});
    drawHelpLine({fall, high}, {fall, firstSpan + length(arrow)});
    drawHelpLine({nextRise, high}, {nextRise, secondSpan + length(arrow)});
    drawSignal(QPolygonF() << QPointF(left, low) << QPointF(rise, low) << QPointF(rise, high)
                           << QPointF(fall, high) << QPointF(fall, low) << QPointF(nextRise, low)
                           << QPointF(nextRise, high) << QPointF(right, high));
    drawSpan(rise, fall, firstSpan, tr("Width"));
    drawSpan(fall, nextRise, firstSpan, tr("Delay"));
    drawSpan(rise, nextRise, secondSpan, tr("Period"));
}

// Strobes: each with its delay and width, below what the sensor does

qreal DiagramDrawing::headWidth() const
{
    qreal width = 0;
    for (const QString &name : {tr("Frame"), tr("Strobe 1"), tr("Strobe 2")})
        width = qMax(width, lengthFor(0, name));
    return width;
}

qreal DiagramDrawing::delayWidth() const
{
    return lengthFor(52, tr("Delay"));
}

qreal DiagramDrawing::pulseWidth() const
{
    return lengthFor(76, tr("Width"));
}

qreal DiagramDrawing::exposureWidth() const
{
    return qMax(lengthFor(0, tr("Exposure")), delayWidth() + pulseWidth() + length(margin));
}

qreal DiagramDrawing::readoutWidth() const
{
    return qMax(lengthFor(0, tr("Readout")), delayWidth() + pulseWidth() + length(2 * margin));
}

QSizeF DiagramDrawing::strobesSize() const
{
    return QSizeF(
        length(2 * margin + 2 * strobeLead) + headWidth() + exposureWidth() + readoutWidth(),
        length(2 * margin + 2 * cellMargin + 2 * (strobeGap + strobeHeight + spanGap + arrow)) +
            3 * m_height);
}

void DiagramDrawing::drawStrobes(bool isExposure1, bool isExposure2) const
{
    const qreal left = length(margin);
    const qreal top = length(margin);
    const qreal exposure = left + headWidth() + length(strobeLead);
    const qreal readout = exposure + exposureWidth();
    const qreal cellHeight = m_height + length(2 * cellMargin);
    const qreal strobeTop = top + cellHeight + length(strobeGap);
    const qreal strobeStep = length(strobeHeight + spanGap + arrow + strobeGap) + m_height;
    const qreal bottom = strobesSize().height() - length(margin);

    drawHelpLine({exposure, top}, {exposure, bottom});
    drawHelpLine({readout, top}, {readout, bottom});
    drawText(QRectF(left, top, headWidth(), cellHeight), Qt::AlignLeft, tr("Frame"));
    drawCell(QRectF(exposure, top, exposureWidth(), cellHeight), m_exposure, tr("Exposure"));
    drawCell(QRectF(readout, top, readoutWidth(), cellHeight), m_readout, tr("Readout"));
    drawStrobe(tr("Strobe 1"), strobeTop, isExposure1 ? exposure : readout);
    drawStrobe(tr("Strobe 2"), strobeTop + strobeStep, isExposure2 ? exposure : readout);
}

void DiagramDrawing::drawStrobe(const QString &name, qreal top, qreal start) const
{
    const qreal low = top + length(strobeHeight);
    const qreal begin = length(margin) + headWidth();
    const qreal end = strobesSize().width() - length(margin);
    const qreal rise = start + delayWidth();
    const qreal fall = rise + pulseWidth();
    const qreal span = low + length(spanGap);

    drawText(QRectF(length(margin), top, headWidth(), length(strobeHeight)), Qt::AlignLeft, name);
    for (const qreal x : {rise, fall})
        drawHelpLine({x, low}, {x, span + length(arrow)});
    drawSignal(QPolygonF() << QPointF(begin, low) << QPointF(rise, low) << QPointF(rise, top)
                           << QPointF(fall, top) << QPointF(fall, low) << QPointF(end, low));
    drawSpan(start, rise, span, tr("Delay"));
    drawSpan(rise, fall, span, tr("Width"));
}

// Wide dynamic range: the bends of the response line

QSizeF DiagramDrawing::rangeSize() const
{
    return QSizeF(lengthFor(0, tr("P%1").arg(3)) + length(2 * margin + axesEnd.x()),
                  length(2 * margin + axesEnd.y()) + m_height);
}

void DiagramDrawing::drawRange() const
{
    const qreal labelWidth = lengthFor(0, tr("P%1").arg(3));
    const QPointF origin(length(margin) + labelWidth,
                         rangeSize().height() - length(margin) - m_height);
    const auto place = [&](const QPointF &point) {
        return origin + QPointF(length(point.x()), -length(point.y()));
    };

    QPolygonF line;
    line << origin;
    qreal before = 0;
    int number = 1;
    for (const QPointF &bend : bends) {
        const QPointF at = place(bend);
        line << at;
        drawHelpLine({origin.x(), at.y()}, at);
        drawHelpLine(at, {at.x(), origin.y()});
        drawText(QRectF(origin.x() - labelWidth, at.y() - m_height / 2, labelWidth, m_height),
                 Qt::AlignHCenter, tr("P%1").arg(number));
        drawText(QRectF(place({before, 0}), QSizeF(length(bend.x() - before), m_height)),
                 Qt::AlignHCenter, tr("E%1").arg(number));
        before = bend.x();
        ++number;
    }
    line << place(lineEnd);
    drawAxis(origin, place({0, axesEnd.y()}));
    drawAxis(origin, place({axesEnd.x(), 0}));
    drawSignal(line);
    m_painter->setBrush(m_signal);
    for (const QPointF &bend : bends)
        m_painter->drawEllipse(place(bend), length(3), length(3));
}

// Parts of the drawings

void DiagramDrawing::drawSignal(const QPolygonF &line) const
{
    m_painter->setPen(QPen(m_signal, length(3), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    m_painter->drawPolyline(line);
}

void DiagramDrawing::drawHelpLine(const QPointF &from, const QPointF &to) const
{
    m_painter->setPen(QPen(m_help, length(1), Qt::DashLine));
    m_painter->drawLine(from, to);
}

void DiagramDrawing::drawAxis(const QPointF &from, const QPointF &to) const
{
    m_painter->setPen(QPen(m_ink, length(1.4)));
    m_painter->drawLine(from, to);
    drawArrowHead(to, to - from);
}

void DiagramDrawing::drawSpan(qreal from, qreal to, qreal y, const QString &text) const
{
    const QPointF left(from + length(2), y);
    const QPointF right(to - length(2), y);
    m_painter->setPen(QPen(m_ink, length(1.4)));
    m_painter->drawLine(left, right);
    drawArrowHead(left, left - right);
    drawArrowHead(right, right - left);
    drawText(QRectF(from, y + length(arrow), to - from, m_height), Qt::AlignHCenter, text);
}

/// Uses the pen of the arrow.
void DiagramDrawing::drawArrowHead(const QPointF &tip, const QPointF &direction) const
{
    const qreal whole = qSqrt(QPointF::dotProduct(direction, direction));
    const QPointF back = direction / whole * -length(arrow);
    const QPointF aside(back.y() * 0.6, -back.x() * 0.6);
    m_painter->drawPolyline(QPolygonF() << tip + back + aside << tip << tip + back - aside);
}

void DiagramDrawing::drawCell(const QRectF &cell, const QColor &color, const QString &text) const
{
    m_painter->setPen(QPen(m_help, length(1)));
    m_painter->setBrush(color);
    m_painter->drawRect(cell);
    m_painter->setBrush(Qt::NoBrush);
    drawText(cell, Qt::AlignHCenter, text);
}

void DiagramDrawing::drawText(const QRectF &area, int alignment, const QString &text) const
{
    m_painter->setPen(m_ink);
    m_painter->drawText(area,
                        alignment | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine |
                            Qt::TextDontClip,
                        text);
}

} // namespace OrvGui

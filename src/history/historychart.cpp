// SPDX-License-Identifier: MIT
#include "history/historychart.h"

#include "base/readablecolors.h"
#include "widgets/numbertext.h"

#include <QAccessible>
#include <QDateTime>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace OrvGui {

namespace {

constexpr qint64 minute = 60 * 1000; // ms
constexpr int margin = 6;
constexpr double longestNumber = 1e12; // larger ones are shown with an exponent
constexpr double mostLines = 6;        // of the grid, horizontal

/// The next number of the sequence 1, 2, 5, 10, …
double roundStep(double step)
{
    const double power = std::pow(10.0, std::floor(std::log10(step)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (step <= factor * power * 1.0001)
            return factor * power;
    }
    return 10 * power;
}

} // namespace

HistoryChart::HistoryChart(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void HistoryChart::setSeries(const QVector<Series> &series)
{
    m_series = series;
    update();
}

void HistoryChart::setUnit(const QString &unit, int decimals)
{
    m_unit = unit;
    m_decimals = decimals;
    update();
}

void HistoryChart::setEnd(qint64 time)
{
    m_end = time;
    if (m_mark != 0 && m_mark < m_end - SampleRing::span)
        mark(0);
    update();
}

QString HistoryChart::text(double value, int moreDecimals) const
{
    const QString number = numberText(value, m_decimals + moreDecimals);
    return m_unit.isEmpty() ? number : number + QLatin1Char(' ') + m_unit;
}

QString HistoryChart::numberText(double value, int decimals) const
{
    return std::abs(value) < longestNumber ? NumberText::of(value, decimals, locale())
                                           : locale().toString(value, 'g', 6);
}

QSize HistoryChart::sizeHint() const
{
    const int em = fontMetrics().height();
    return QSize(32 * em, 14 * em);
}

QSize HistoryChart::minimumSizeHint() const
{
    const int em = fontMetrics().height();
    return QSize(18 * em, 8 * em);
}

HistoryChart::Axis HistoryChart::axis() const
{
    bool isEmpty = true;
    double low = 0;
    double high = 1;
    for (const Series &one : m_series) {
        const SampleRing::Summary summary = one.ring->summary();
        if (summary.count == 0)
            continue;
        low = isEmpty ? summary.min : qMin(low, summary.min);
        high = isEmpty ? summary.max : qMax(high, summary.max);
        isEmpty = false;
    }
    const double smallest = std::pow(10.0, -m_decimals);
    const double middle = (low + high) / 2;
    const double extent = std::max({high - low, std::abs(middle) * 0.02, 4 * smallest});
    Axis axis;
    const double lines = qBound(2.0, height() / (2.5 * fontMetrics().height()) - 1, mostLines);
    axis.step = std::max(roundStep(extent / lines), smallest);
    axis.low = std::floor((middle - extent * 0.55) / axis.step) * axis.step;
    axis.high = std::ceil((middle + extent * 0.55) / axis.step) * axis.step;
    if (low >= 0 && axis.low < 0)
        axis.low = 0;
    axis.decimals =
        qBound(0, static_cast<int>(std::ceil(-std::log10(axis.step) - 1e-9)), m_decimals);
    return axis;
}

QRect HistoryChart::plot(const Axis &axis) const
{
    const QFontMetrics metrics = fontMetrics();
    int widest = 0;
    for (double value = axis.low; value <= axis.high + axis.step / 2; value += axis.step) {
        const QString label = numberText(value, axis.decimals);
        widest = qMax(widest, metrics.size(Qt::TextSingleLine, label).width());
    }
    const int half = metrics.size(Qt::TextSingleLine, clock(m_end, false)).width() / 2;
    return rect().adjusted(widest + 2 * margin, metrics.height() * 3 / 2 + 2 * margin,
                           -half - margin, -metrics.height() - 2 * margin);
}

qreal HistoryChart::xOf(qint64 time, const QRect &plot) const
{
    const qreal part = qreal(time - (m_end - SampleRing::span)) / SampleRing::span;
    return plot.left() + part * plot.width();
}

qreal HistoryChart::yOf(double value, const QRect &plot, const Axis &axis) const
{
    return plot.bottom() - (value - axis.low) / (axis.high - axis.low) * plot.height();
}

qint64 HistoryChart::timeAt(int x) const
{
    const QRect area = plot(axis());
    const qreal part = qreal(x - area.left()) / qMax(1, area.width());
    return m_end - SampleRing::span + qint64(qBound(0.0, part, 1.0) * SampleRing::span);
}

QString HistoryChart::clock(qint64 time, bool withSeconds) const
{
    const QTime of = QDateTime::fromMSecsSinceEpoch(time).time();
    if (withSeconds)
        return of.toString(QStringLiteral("HH:mm:ss"));
    return of.toString(QStringLiteral("HH:mm"));
}

/// The samples nearest to the time; empty where there are none.
QString HistoryChart::textAt(qint64 time) const
{
    QStringList lines;
    for (const Series &one : m_series) {
        const int index = one.ring->nearest(time);
        if (index < 0)
            continue;
        const SampleRing::Sample &sample = one.ring->at(index);
        if (qAbs(sample.time - time) > SampleRing::longestGap)
            continue;
        if (lines.isEmpty())
            lines << clock(sample.time, true);
        lines << (one.name.isEmpty() ? text(sample.value)
                                     : tr("%1: %2").arg(one.name, text(sample.value)));
    }
    return lines.join(QStringLiteral("  "));
}

QPen HistoryChart::penOf(int series) const
{
    const QPalette::ColorRole role = series == 0 ? QPalette::Highlight : QPalette::Text;
    const QColor color = readableOn(palette().color(QPalette::Base), palette().color(role));
    return QPen(color, 1.8, series == 0 ? Qt::SolidLine : Qt::DashLine, Qt::FlatCap, Qt::RoundJoin);
}

void HistoryChart::mark(qint64 time)
{
    if (m_mark == time)
        return;
    m_mark = time;
    emit marked(m_mark == 0 ? QString() : textAt(m_mark));
    update();
}

/// Moves the mark to the next sample of any series, or to the last sample if there is no mark.
void HistoryChart::step(int direction)
{
    qint64 next = 0;
    for (const Series &one : m_series) {
        for (int i = 0; i < one.ring->size(); ++i) {
            const SampleRing::Sample &sample = one.ring->at(i);
            const bool isThere =
                m_mark == 0 || (direction < 0 ? sample.time < m_mark : sample.time > m_mark);
            const bool isNearer = next == 0 || (m_mark == 0 || direction < 0 ? sample.time > next
                                                                             : sample.time < next);
            if (!std::isnan(sample.value) && isThere && isNearer)
                next = sample.time;
        }
    }
    if (next != 0)
        mark(next);
}

bool HistoryChart::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QString text = textAt(timeAt(help->pos().x()));
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(), text, this);
    return true;
}

void HistoryChart::mouseMoveEvent(QMouseEvent *event)
{
    const qint64 time = timeAt(event->pos().x());
    const QString text = textAt(time);
    mark(text.isEmpty() ? 0 : time);
    if (QToolTip::isVisible() && !text.isEmpty())
        QToolTip::showText(mapToGlobal(event->pos()), text, this);
}

void HistoryChart::leaveEvent(QEvent *)
{
    mark(0);
}

void HistoryChart::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        return step(-1);
    case Qt::Key_Right:
        return step(1);
    case Qt::Key_Home:
        m_mark = 1;
        return step(1);
    case Qt::Key_End:
        m_mark = 0;
        return step(-1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void HistoryChart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setLayoutDirection(Qt::LeftToRight); // time runs left to right in every language
    const Axis numbers = axis();
    const QRect area = plot(numbers);
    painter.fillRect(area, palette().base());
    drawAxes(painter, area, numbers);
    drawLegend(painter, area);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.setClipRect(area.adjusted(-2, -2, 3, 3));
    for (int i = 0; i < m_series.size(); ++i)
        drawSeries(painter, i, area, numbers);
    drawMark(painter, area, numbers);
    painter.restore();
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void HistoryChart::drawAxes(QPainter &painter, const QRect &plot, const Axis &axis) const
{
    const QFontMetrics metrics = fontMetrics();
    const QColor ink = palette().color(QPalette::WindowText);
    QColor grid = palette().color(QPalette::Text);
    grid.setAlphaF(0.15F);
    for (double value = axis.low; value <= axis.high + axis.step / 2; value += axis.step) {
        const int y = qRound(yOf(value, plot, axis));
        painter.setPen(grid);
        painter.drawLine(plot.left(), y, plot.right(), y);
        painter.setPen(ink);
        painter.drawText(QRect(0, y - metrics.height() / 2, plot.left() - margin, metrics.height()),
                         Qt::AlignRight | Qt::AlignVCenter, numberText(value, axis.decimals));
    }
    const qint64 apart = plot.width() < 5 * 2 * metrics.height() ? 5 * minute : 2 * minute;
    for (qint64 time = (m_end / apart) * apart; time >= m_end - SampleRing::span; time -= apart) {
        const int x = qRound(xOf(time, plot));
        painter.setPen(grid);
        painter.drawLine(x, plot.top(), x, plot.bottom());
        painter.setPen(ink);
        painter.drawText(QRect(x - 100, plot.bottom() + margin, 200, metrics.height()),
                         Qt::AlignHCenter | Qt::AlignTop, clock(time, false));
    }
    painter.setPen(ink);
    painter.drawText(QRect(0, margin, width(), metrics.height()), Qt::AlignLeft | Qt::AlignTop,
                     QLatin1Char(' ') + m_unit);
    painter.drawLine(plot.bottomLeft(), plot.bottomRight());
    painter.drawLine(plot.topLeft(), plot.bottomLeft());
}

void HistoryChart::drawSeries(QPainter &painter, int series, const QRect &plot,
                              const Axis &axis) const
{
    const SampleRing &ring = *m_series.at(series).ring;
    const QPen pen = penOf(series);
    QPainterPath path;
    for (int i = 0; i < ring.size(); ++i) {
        const SampleRing::Sample &sample = ring.at(i);
        if (std::isnan(sample.value))
            continue;
        const QPointF point(xOf(sample.time, plot), yOf(sample.value, plot, axis));
        const bool isLast = i + 1 == ring.size();
        if (!ring.isAfterGap(i))
            path.lineTo(point);
        else
            path.moveTo(point);
        // A line through a single sample is invisible.
        const bool endsHere = isLast || ring.isAfterGap(i + 1) || std::isnan(ring.at(i + 1).value);
        if (ring.isAfterGap(i) && endsHere)
            painter.fillRect(QRectF(point - QPointF(2, 2), QSizeF(4, 4)), pen.color());
    }
    painter.setPen(pen);
    painter.drawPath(path);
}

void HistoryChart::drawLegend(QPainter &painter, const QRect &plot) const
{
    const QFontMetrics metrics = fontMetrics();
    int right = plot.right();
    for (int i = int(m_series.size()) - 1; i >= 0; --i) {
        const QString &name = m_series.at(i).name;
        if (name.isEmpty())
            continue;
        const int width = metrics.size(Qt::TextSingleLine, name).width();
        const int y = margin + metrics.height() / 2;
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(right - width, margin, width, metrics.height()), Qt::AlignLeft,
                         name);
        const int sample = 2 * metrics.height();
        painter.setPen(penOf(i));
        painter.drawLine(right - width - margin - sample, y, right - width - margin, y);
        right -= width + 3 * margin + sample;
    }
}

void HistoryChart::drawMark(QPainter &painter, const QRect &plot, const Axis &axis) const
{
    if (m_mark == 0)
        return;
    for (int i = 0; i < m_series.size(); ++i) {
        const SampleRing &ring = *m_series.at(i).ring;
        const int index = ring.nearest(m_mark);
        if (index < 0 || qAbs(ring.at(index).time - m_mark) > SampleRing::longestGap)
            continue;
        const QPointF point(xOf(ring.at(index).time, plot), yOf(ring.at(index).value, plot, axis));
        painter.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DotLine));
        painter.drawLine(QPointF(point.x(), plot.top()), QPointF(point.x(), plot.bottom()));
        painter.setPen(QPen(palette().color(QPalette::Base), 1.5));
        painter.setBrush(penOf(i).color());
        painter.drawEllipse(point, 4, 4);
    }
}

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "history/samplering.h"

#include <QString>
#include <QVector>
#include <QWidget>

namespace OrvGui {

/// Numbers over the last ten minutes, one line for each series.
///
/// A tool tip shows the value under the pointer. The arrow keys, Home and End move the mark from
/// sample to sample.
class HistoryChart : public QWidget
{
    Q_OBJECT

public:
    struct Series
    {
        QString name;           ///< empty if it is the only one
        const SampleRing *ring; ///< must live as long as the chart
    };

    explicit HistoryChart(QWidget *parent = nullptr);

    void setSeries(const QVector<Series> &series);
    void setUnit(const QString &unit, int decimals);

    /// The end of the time axis; ms since 1970.
    void setEnd(qint64 time);

    /// The number with its unit.
    QString text(double value, int moreDecimals = 0) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The values of the samples at the mark as text; empty without a mark.
    void marked(const QString &text);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    struct Axis
    {
        double low = 0;
        double high = 1;
        double step = 1;
        int decimals = 0;
    };

    QString numberText(double value, int decimals) const;
    Axis axis() const;
    QRect plot(const Axis &axis) const;
    qreal xOf(qint64 time, const QRect &plot) const;
    qreal yOf(double value, const QRect &plot, const Axis &axis) const;
    qint64 timeAt(int x) const;
    QString textAt(qint64 time) const;
    QString clock(qint64 time, bool withSeconds) const;
    QPen penOf(int series) const;
    void mark(qint64 time);
    void step(int direction);
    void drawAxes(QPainter &painter, const QRect &plot, const Axis &axis) const;
    void drawSeries(QPainter &painter, int series, const QRect &plot, const Axis &axis) const;
    void drawLegend(QPainter &painter, const QRect &plot) const;
    void drawMark(QPainter &painter, const QRect &plot, const Axis &axis) const;

    QVector<Series> m_series;
    QString m_unit;
    int m_decimals = 0;
    qint64 m_end = 0;
    qint64 m_mark = 0; ///< 0 for none
};

} // namespace OrvGui

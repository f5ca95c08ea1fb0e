// SPDX-License-Identifier: MIT
#pragma once

#include "history/historychart.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace OrvGui {

/// Shows the last ten minutes of one number as a chart, with the minimum, the maximum and the mean;
/// the data can be copied as CSV.
class HistoryWindow : public QDialog
{
    Q_OBJECT

public:
    using Series = QVector<HistoryChart::Series>;

    /// `name` is the number's, such as "FPS".
    HistoryWindow(const QString &name, const QString &unit, int decimals, QWidget *parent);

    /// The rings must live as long as the window.
    void setSeries(const Series &series);

    /// Updates the window from the rings.
    void refresh();

    /// A header line, then a line for each time: the time with its offset from UTC, and the values
    /// with a decimal point. A field without a number is empty.
    QString csv() const;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void copy() const;
    QString summaryOf(const HistoryChart::Series &series) const;

    const QString m_name;
    const QString m_unit;
    const int m_decimals;
    Series m_series;
    HistoryChart *const m_chart;
    QLabel *const m_summary;
    QLabel *const m_marked;
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "history/historychart.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace OrvGui {

/// The last ten minutes of one number as a chart, with the smallest, the largest and the mean
/// value; all of it can be copied as CSV.
class HistoryWindow : public QDialog
{
    Q_OBJECT

public:
    using Series = QVector<HistoryChart::Series>;

    /// `name` is the number's, as "FPS".
    HistoryWindow(const QString &name, const QString &unit, int decimals, QWidget *parent);

    /// The rings have to live as long as the window.
    void setSeries(const Series &series);

    /// Shows the present numbers of the rings.
    void refresh();

    /// A line of headings, then one for each moment: the time with its offset from UTC, and the
    /// values with a decimal point. A field is empty where there is no number.
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

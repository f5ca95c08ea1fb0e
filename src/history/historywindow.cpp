// SPDX-License-Identifier: MIT
#include "history/historywindow.h"

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QMap>
#include <QMimeData>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

#include <cmath>

namespace OrvGui {

namespace {

QString field(QString text)
{
    const bool isPlain = !text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')) &&
                         !text.contains(QLatin1Char('\n'));
    return isPlain ? text
                   : QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) +
                         QLatin1Char('"');
}

/// In line heights.
QString noText()
{
    return QString(QChar::Nbsp);
}

QString timeOf(qint64 time)
{
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(time);
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODateWithMs);
}

} // namespace

HistoryWindow::HistoryWindow(const QString &name, const QString &unit, int decimals,
                             QWidget *parent)
    : QDialog(parent)
    , m_name(name)
    , m_unit(unit)
    , m_decimals(decimals)
    , m_chart(new HistoryChart(this))
    , m_summary(new QLabel(this))
    , m_marked(new QLabel(noText(), this))
{
    setWindowTitle(tr("%1, last ten minutes").arg(name));
    m_chart->setUnit(unit, decimals);
    m_chart->setAccessibleName(windowTitle());
    for (QLabel *label : {m_summary, m_marked})
        label->setTextFormat(Qt::PlainText);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_summary->setObjectName(QStringLiteral("summary"));
    m_marked->setObjectName(QStringLiteral("marked"));

    auto *copying = new QAction(tr("Copy as CSV"), this);
    copying->setShortcuts(QKeySequence::Copy);
    connect(copying, &QAction::triggered, this, [this] { copy(); });
    addAction(copying);
    setContextMenuPolicy(Qt::ActionsContextMenu);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto *button = buttons->addButton(copying->text(), QDialogButtonBox::ActionRole);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, copying, &QAction::trigger);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_chart, 1);
    layout->addWidget(m_summary);
    layout->addWidget(m_marked);
    layout->addWidget(buttons);

    connect(m_chart, &HistoryChart::marked, this, [this](const QString &text) {
        m_marked->setText(text.isEmpty() ? noText() : text);
        m_chart->setAccessibleDescription(text);
        QAccessibleEvent event(m_chart, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    });
    m_chart->setFocus();
}

void HistoryWindow::setSeries(const Series &series)
{
    m_series = series;
    m_chart->setSeries(series);
    refresh();
}

void HistoryWindow::refresh()
{
    if (!isVisible())
        return;
    m_chart->setEnd(QDateTime::currentMSecsSinceEpoch());
    QStringList lines;
    for (const HistoryChart::Series &one : std::as_const(m_series))
        lines << summaryOf(one);
    m_summary->setText(lines.join(QLatin1Char('\n')));
}

void HistoryWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    refresh();
}

QString HistoryWindow::summaryOf(const HistoryChart::Series &series) const
{
    const SampleRing::Summary summary = series.ring->summary();
    const QString name = series.name.isEmpty() ? m_name : series.name;
    if (summary.count == 0)
        return tr("%1: no values").arg(name);
    return tr("%1: min %2, max %3, mean %4")
        .arg(name, m_chart->text(summary.min), m_chart->text(summary.max),
             m_chart->text(summary.mean, m_decimals == 0 ? 1 : 0));
}

QString HistoryWindow::csv() const
{
    QStringList head{tr("Time")};
    QMap<qint64, QStringList> rows;
    for (int i = 0; i < m_series.size(); ++i) {
        const HistoryChart::Series &one = m_series.at(i);
        const QString name = one.name.isEmpty() ? m_name : m_name + QLatin1Char(' ') + one.name;
        head << (m_unit.isEmpty() ? name : QStringLiteral("%1 [%2]").arg(name, m_unit));
        for (int sample = 0; sample < one.ring->size(); ++sample) {
            const SampleRing::Sample &at = one.ring->at(sample);
            QStringList &row = rows[at.time];
            while (row.size() < m_series.size())
                row << QString();
            if (!std::isnan(at.value))
                row[i] = QString::number(at.value, 'f', m_decimals);
        }
    }
    QStringList lines;
    for (QString &one : head)
        one = field(one);
    lines << head.join(QLatin1Char(','));
    for (auto row = rows.constBegin(); row != rows.constEnd(); ++row)
        lines << timeOf(row.key()) + QLatin1Char(',') + row.value().join(QLatin1Char(','));
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void HistoryWindow::copy() const
{
    const QString text = csv();
    auto *copied = new QMimeData;
    copied->setText(text);
    copied->setData(QStringLiteral("text/csv"), text.toUtf8());
    QGuiApplication::clipboard()->setMimeData(copied);
}

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#include "selector/infopane.h"

#include "base/cameratext.h"
#include "base/treeviewmodel.h"
#include "base/treeviewresizer.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTreeView>

namespace {

constexpr int labelColumn = 0;
constexpr int valueColumn = 1;

} // namespace

InfoPane::InfoPane(QTreeView *view) : m_view(view)
{
    auto *resizer = new TreeViewResizer(view);
    m_connections.add(resizer, &TreeViewResizer::showed, [this] { viewShown(); });
}

/// Fits the columns. Before the view was shown the values' column did not have its final width.
void InfoPane::viewShown()
{
    if (m_wasHidden && m_view->model() && hasOwnWidth()) {
        halveColumns();
        showTextsWhole();
    }
    m_wasHidden = false;
}

int InfoPane::heightOf(int rows) const
{
    QStandardItemModel *sample = makeFacts();
    add(sample, sample->headerData(labelColumn, Qt::Horizontal).toString(), QString());
    setTreeViewModel(m_view, sample);
    const QHeaderView *header = m_view->header();
    const int headerHeight = header->isHidden() ? 0 : header->sizeHint().height();
    const int height = headerHeight + rows * m_view->sizeHintForRow(0) + 2 * m_view->frameWidth();
    setTreeViewModel(m_view, nullptr);
    delete sample;
    return height;
}

void InfoPane::clear()
{
    QAbstractItemModel *facts = m_view->model();
    if (!facts)
        return;
    const int width = m_view->columnWidth(labelColumn);
    const bool isPreliminary = m_wasHidden && hasOwnWidth();
    if (width != 0 && !isPreliminary)
        m_width = width;
    setTreeViewModel(m_view, nullptr);
    facts->deleteLater();
}

void InfoPane::show(QStandardItemModel *facts)
{
    clear();
    facts->setParent(m_view);
    setTreeViewModel(m_view, facts);
    if (m_width != 0)
        m_view->setColumnWidth(labelColumn, m_width);
    else
        halveColumns();
    if (m_width == 0 || hasOwnWidth())
        showTextsWhole();
    m_wasHidden = !m_view->isVisible();
}

/// False for a width that the user has set.
bool InfoPane::hasOwnWidth() const
{
    return m_view->columnWidth(labelColumn) == m_ownWidth;
}

void InfoPane::halveColumns()
{
    m_view->header()->setStretchLastSection(true); // takes effect at once
    const int mean = (m_view->columnWidth(labelColumn) + m_view->columnWidth(valueColumn)) / 2;
    m_view->setColumnWidth(labelColumn, mean);
}

/// Gives the values the space that the labels do not need, but the labels at least what they need.
void InfoPane::showTextsWhole()
{
    // Does the layout, which shows the scroll bar.
    m_view->visualRect(m_view->model()->index(0, labelColumn));
    const int labels = m_view->columnWidth(labelColumn);
    const int room = labels + m_view->columnWidth(valueColumn);
    m_ownWidth =
        qMax(qMin(labels, room - widestText(valueColumn)), qMin(widestText(labelColumn), room));
    m_view->setColumnWidth(labelColumn, m_ownWidth);
}

int InfoPane::widestText(int column) const
{
    const QAbstractItemModel *facts = m_view->model();
    const QHeaderView *header = m_view->header();
    int widest = header->isHidden() ? 0 : header->sectionSizeHint(column);
    for (int row = 0; row < facts->rowCount(); ++row)
        widest = qMax(widest, m_view->sizeHintForIndex(facts->index(row, column)).width());
    return widest;
}

QStandardItemModel *InfoPane::makeFacts()
{
    auto *facts = new QStandardItemModel(0, 2);
    facts->setHorizontalHeaderLabels({QCoreApplication::translate("InfoPane", "Property"),
                                      QCoreApplication::translate("InfoPane", "Value")});
    return facts;
}

void InfoPane::add(QStandardItemModel *facts, const QString &label, const QString &value,
                   bool isWrong)
{
    auto *valueItem = new QStandardItem(value);
    valueItem->setToolTip(OrvGui::literally(value)); // the column may be too narrow
    if (isWrong) {
        valueItem->setBackground(QBrush(Qt::red));
        valueItem->setForeground(QBrush(Qt::black)); // the contrast of white is lower
    }
    facts->appendRow({new QStandardItem(label), valueItem});
}

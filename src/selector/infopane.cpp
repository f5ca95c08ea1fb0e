// SPDX-License-Identifier: MIT
#include "infopane.h"

#include "treeviewresizer.h"

#include <QCoreApplication>
#include <QStandardItemModel>
#include <QTreeView>

namespace {

const int labelColumn = 0;
const int valueColumn = 1;

} // namespace

InfoPane::InfoPane(QTreeView *view) : m_view(view)
{
    new TreeViewResizer(view);
}

void InfoPane::clear()
{
    QAbstractItemModel *facts = m_view->model();
    if (!facts)
        return;
    const int width = m_view->columnWidth(labelColumn);
    if (width != 0)
        m_width = width;
    setModel(nullptr);
    facts->deleteLater();
}

void InfoPane::setModel(QAbstractItemModel *facts)
{
    m_view->setModel(facts);
    // The view and its header leave the selection models that they had behind.
    for (QItemSelectionModel *selection : m_view->findChildren<QItemSelectionModel *>()) {
        if (selection != m_view->selectionModel())
            delete selection;
    }
}

void InfoPane::show(QStandardItemModel *facts)
{
    clear();
    facts->setParent(m_view);
    setModel(facts);
    const int mean = (m_view->columnWidth(labelColumn) + m_view->columnWidth(valueColumn)) / 2;
    m_view->setColumnWidth(labelColumn, m_width != 0 ? m_width : mean);
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
    valueItem->setToolTip(value); // the column may be too narrow for it
    if (isWrong)
        valueItem->setBackground(QBrush(Qt::red));
    facts->appendRow({new QStandardItem(label), valueItem});
}

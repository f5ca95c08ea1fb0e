// SPDX-License-Identifier: MIT
#include "genparamtree/knownvaluesmodel.h"

#include "base/featuremetatype.h"
#include "genparamtree/genparamtreemodel.h"
#include "genparamtree/treelookahead.h"

#include <QHash>
#include <QPalette>

#include <algorithm>
#include <functional>

namespace OrvGui {

namespace {

constexpr int valueColumn = 1;

} // namespace

QVariant KnownValuesModel::data(const QModelIndex &index, int role) const
{
    const bool isOfCell =
        index.column() == valueColumn && (role == Qt::DisplayRole || role == Qt::ForegroundRole);
    const bool isOfValue = index.column() == valueColumn && role == Qt::EditRole;
    if (!m_lookAhead || !(isOfCell || isOfValue || role == Qt::WhatsThisRole))
        return GenParamTreeVisibilityFilterProxyModel::data(index, role);
    const QModelIndex source = mapToSource(index);
    GenApi::IValue *feature = featureOf(source);
    if (!feature)
        return QVariant();

    if (isOfCell)
        return role == Qt::DisplayRole ? cell(source).text : cell(source).foreground;
    const auto extent = isOfValue ? TreeLookAhead::Cell : TreeLookAhead::Everything;
    QVariant answer;
    const bool isKnown =
        m_lookAhead->look(feature, extent, [&] { answer = sourceModel()->data(source, role); });
    return isKnown ? answer : QVariant();
}

Qt::ItemFlags KnownValuesModel::flags(const QModelIndex &index) const
{
    if (!m_lookAhead || index.column() != valueColumn)
        return GenParamTreeVisibilityFilterProxyModel::flags(index);
    const QModelIndex source = mapToSource(index);
    return featureOf(source) ? cell(source).flags : sourceModel()->flags(source);
}

// Removing and inserting rows costs the number of row ranges times the number of persistent
// indexes. A new layout costs each row once, and views keep the expansion and the selection all the
// same.
void KnownValuesModel::refilter()
{
    if (!isEachIndexFoundAgain())
        return invalidateFilter();
    dropIndexesInHiddenCategories();
    invalidate();
}

// The source maps a feature in several categories to the first of them only, and one that has just
// been removed to none.
bool KnownValuesModel::isEachIndexFoundAgain() const
{
    const QModelIndexList indexes = persistentIndexList();
    return std::all_of(indexes.begin(), indexes.end(), [this](const QModelIndex &index) {
        return mapFromSource(mapToSource(index)) == index;
    });
}

// Qt would map them to top-level rows.
void KnownValuesModel::dropIndexesInHiddenCategories()
{
    QHash<QModelIndex, bool> isShown{{QModelIndex(), true}};
    const std::function<bool(const QModelIndex &)> isCategoryShown =
        [&](const QModelIndex &source) {
            const auto known = isShown.constFind(source);
            if (known != isShown.constEnd())
                return *known;
            const bool isAccepted =
                isCategoryShown(source.parent()) && filterAcceptsRow(source.row(), source.parent());
            isShown.insert(source, isAccepted);
            return isAccepted;
        };
    QModelIndexList dropped;
    for (const QModelIndex &index : persistentIndexList()) {
        if (!isCategoryShown(mapToSource(index).parent()))
            dropped << index;
    }
    QModelIndexList nothing;
    while (nothing.size() < dropped.size())
        nothing << QModelIndex();
    changePersistentIndexList(dropped, nothing);
}

KnownValuesModel::Cell KnownValuesModel::cell(const QModelIndex &source) const
{
    GenApi::IValue *feature = featureOf(source);
    Cell now;
    const bool isKnown = m_lookAhead->look(feature, TreeLookAhead::Cell, [&] {
        const QAbstractItemModel *model = sourceModel();
        now = {model->data(source, Qt::DisplayRole), model->data(source, Qt::ForegroundRole),
               model->flags(source)};
    });
    if (isKnown) {
        m_lastCells.insert(feature, new Cell(now));
        return now;
    }
    if (const Cell *last = m_lastCells.object(feature))
        return *last;
    return {QString(QChar(0x2026)), QPalette().brush(QPalette::Disabled, QPalette::Text),
            Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable};
}

} // namespace OrvGui

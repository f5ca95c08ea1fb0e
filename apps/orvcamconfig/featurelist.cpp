// SPDX-License-Identifier: MIT
#include "featurelist.h"

#include <OrvGenParam/LookAhead.h>
#include <base/cameratext.h>

#include <QAbstractProxyModel>

namespace {

/// The cell of the source model, which blocks for the camera; the view's model returns "not yet".
QModelIndex sourceOf(QModelIndex cell)
{
    while (const auto *proxy = qobject_cast<const QAbstractProxyModel *>(cell.model()))
        cell = proxy->mapToSource(cell);
    return cell;
}

QString cellText(const QModelIndex &cell)
{
    QString text = sourceOf(cell).data().toString();
    for (const QChar lineBreak : {QChar('\n'), QChar('\r'), QChar('\t')})
        text.replace(lineBreak, ' ');
    return OrvGui::printable(text); // a terminal interprets control characters
}

void collect(const QAbstractItemModel &model, const QModelIndex &parent,
             std::vector<OrvGenParam::LookAhead::Ask> &asks)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex value = sourceOf(model.index(row, 1, parent));
        asks.emplace_back([value] { value.model()->data(value, Qt::DisplayRole); });
        collect(model, model.index(row, 0, parent), asks);
    }
}

} // namespace

void fetchFeatures(const QAbstractItemModel &model, GenApi::INodeMap *nodeMap)
{
    auto *lookAhead = dynamic_cast<OrvGenParam::LookAhead *>(nodeMap);
    if (!lookAhead)
        return;
    std::vector<OrvGenParam::LookAhead::Ask> asks;
    collect(model, QModelIndex(), asks);
    lookAhead->fetchNow(asks);
}

void printFeatures(const QAbstractItemModel &model, QTextStream &out, const QModelIndex &parent,
                   int level)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex name = model.index(row, 0, parent);
        out << QString(2 * level, ' ') << cellText(name) << '\t'
            << cellText(model.index(row, 1, parent)) << '\n';
        printFeatures(model, out, name, level + 1);
    }
}

// SPDX-License-Identifier: MIT
#include "featurelist.h"

namespace {

QString cellText(const QModelIndex &cell)
{
    QString text = cell.data().toString();
    for (const QChar lineBreak : {QChar('\n'), QChar('\r'), QChar('\t')})
        text.replace(lineBreak, ' ');
    return text;
}

} // namespace

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

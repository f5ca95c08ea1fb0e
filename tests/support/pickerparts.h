// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QTreeView>

// The parts of the picker.

inline QTreeView *cameraTree(const QDialog &picker)
{
    return picker.findChild<QTreeView *>("cameraTreeView");
}

inline QPushButton *button(const QDialog &picker, const QString &text)
{
    for (QPushButton *candidate : picker.findChildren<QPushButton *>()) {
        if (candidate->text().remove('&') == text)
            return candidate;
    }
    qFatal("There is no button %s", qPrintable(text));
}

/// The first row, depth first, that starts with these words; invalid if there is none.
inline QModelIndex rowNamed(const QTreeView &tree, const QString &words)
{
    return tree.model()
        ->match(tree.model()->index(0, 0), Qt::DisplayRole, words, 1,
                Qt::MatchContains | Qt::MatchRecursive)
        .value(0);
}

/// The contents of a pane, as "label: value".
inline QStringList factsOf(const QTreeView &pane)
{
    QStringList rows;
    const QAbstractItemModel *model = pane.model();
    for (int row = 0; model && row < model->rowCount(); ++row)
        rows << model->index(row, 0).data().toString() + ": " +
                    model->index(row, 1).data().toString();
    return rows;
}

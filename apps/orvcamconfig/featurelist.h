// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>
#include <QTextStream>

/// Prints the rows of a tree, one a line: two blanks of indentation per level, the name, a tab, the
/// value. Line breaks inside a text become blanks.
void printFeatures(const QAbstractItemModel &model, QTextStream &out,
                   const QModelIndex &parent = QModelIndex(), int level = 0);

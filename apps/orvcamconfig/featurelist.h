// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/INodeMap.h>

#include <QAbstractItemModel>
#include <QTextStream>

/// Prints the rows of a tree, one per line: an indentation of two spaces per level, the name, a
/// tab, the value. Line breaks inside a text become spaces. Blocks for the values of a camera.
void printFeatures(const QAbstractItemModel &model, QTextStream &out,
                   const QModelIndex &parent = QModelIndex(), int level = 0);

/// Reads the values for printing the rows of that node map, in as few transfers as possible.
void fetchFeatures(const QAbstractItemModel &model, GenApi::INodeMap *nodeMap);

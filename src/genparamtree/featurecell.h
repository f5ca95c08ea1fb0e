// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QString>

class QLocale;
class QModelIndex;
class QPalette;
class QStyleOptionViewItem;
class QVariant;

// How the cells of the tree look. Nothing here reads a value from the camera.

namespace OrvGui {

/// The text for the value of a feature: numbers with their unit, floating-point numbers in the
/// notation and precision of the node, booleans in the words of their editor.
QString featureText(GenApi::IValue *feature, const QVariant &value, const QLocale &locale);

/// Makes the alternate rows of a palette ones on which its text can be read.
void keepRowsReadable(QPalette *palette);

/// Completes the options of either cell of a row: the whole row of a category has its background,
/// and the text is of a colour that can be read.
void styleFeatureCell(QStyleOptionViewItem *option, const QModelIndex &cell);

} // namespace OrvGui

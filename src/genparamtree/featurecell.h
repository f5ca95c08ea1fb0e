// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QString>

class QLocale;
class QModelIndex;
class QPalette;
class QStyleOptionViewItem;
class QVariant;

// The appearance of the tree's cells. Reads no value from the camera.

namespace OrvGui {

/// The text for the value of a feature: numbers with their unit, floating-point numbers in the
/// notation and precision of the node, booleans in the words of their editor.
QString featureText(GenApi::IValue *feature, const QVariant &value, const QLocale &locale);

/// Adjusts the alternate row colours of a palette so that text on them is readable.
void keepRowsReadable(QPalette *palette);

/// Completes the options of both cells of a row: the row of a category gets its background, and the
/// text a readable colour.
void styleFeatureCell(QStyleOptionViewItem *option, const QModelIndex &cell);

} // namespace OrvGui

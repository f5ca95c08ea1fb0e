// SPDX-License-Identifier: MIT
#pragma once

#include "base/selectormove.h"

#include <GenApi/IValue.h>

#include <QString>
#include <QVector>

class GenParamTreeModel;

namespace OrvGui {

/// A value of a selector.
struct SelectorPlace
{
    GenApi::IValue *selector = nullptr;
    QString value; ///< as GenICam's text

    bool operator==(const SelectorPlace &other) const
    {
        return selector == other.selector && value == other.value;
    }
};

/// The selectors that a feature depends on; selectors of selectors come first.
using SelectorPlaces = QVector<SelectorPlace>;

/// The present values of a feature's selectors. Blocks when a value is not cached.
SelectorPlaces placesOf(GenApi::IValue *feature, const GenParamTreeModel &model);

/// Throws GenICam's exception when a selector cannot be moved.
void moveTo(const SelectorPlaces &places, SelectorMove *move);

} // namespace OrvGui

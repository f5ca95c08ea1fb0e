// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/GenApi.h>

#include <map>
#include <set>
#include <utility>

/// Lists the features of categories so that no category contains itself, not even through others.
///
/// A description may contain cycles of categories, in which a recursive walk would not end. A cycle
/// is broken where a depth-first walk from the root, in row order, would return to a category that
/// it is inside of. Cycles that arise after `breakCycles` are not detected.
class AcyclicFeatures
{
public:
    /// Finds the cycles in all categories below this one.
    void breakCycles(GenApi::ICategory &root);

    /// The features in the order of the description. Empty when the category cannot be read.
    GenApi::FeatureList_t of(const GenApi::ICategory &category) const;

private:
    enum class State { Entered, Left };

    void visit(GenApi::ICategory &category, std::map<const GenApi::IValue *, State> &states);

    /// A category and one of its features, a category that contains the first one.
    std::set<std::pair<const GenApi::IValue *, const GenApi::IValue *>> m_cuts;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/GenApi.h>

#include <map>
#include <set>
#include <utility>

/// Lists the features of categories so that no category contains itself, not even through others.
///
/// A description may make such a circle, in which every walk over the tree would go round for ever.
/// The circle is cut where a walk from the root, depth first and in row order, would come back to a
/// category that it is in. Circles that are made after `cutCircles` are not seen.
class AcyclicFeatures
{
public:
    /// Looks for circles in all that can be reached from the category.
    void cutCircles(GenApi::ICategory &root);

    /// The features in the order of the description. Empty when the category cannot be read.
    GenApi::FeatureList_t of(const GenApi::ICategory &category) const;

private:
    enum class State { Entered, Left };

    void visit(GenApi::ICategory &category, std::map<const GenApi::IValue *, State> &states);

    /// A category and a category among its features, which contains the former.
    std::set<std::pair<const GenApi::IValue *, const GenApi::IValue *>> m_cuts;
};

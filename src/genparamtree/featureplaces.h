// SPDX-License-Identifier: MIT
#pragma once

#include "base/acyclicfeatures.h"

#include <QObject>

#include <cstddef>
#include <memory>
#include <unordered_map>

/// Tells where a feature is listed first in the tree below a category, depth first and in row
/// order, without a search for each feature.
///
/// Where features were found is remembered as a hint. A hint is used only if the categories from
/// the root down still list what they listed. A category that is seen with another list than before
/// makes all hints void, because a feature may have got an earlier place; so does a feature that is
/// not where its hint says. Then the tree is walked once, for all features.
///
/// Lists are fetched each time. Only a list so long that this would cost the square of its
/// length is kept, until the program is back in its event loop or the length is queried.
///
/// `find` may be called on any thread, everything else belongs to the thread of the object.
class FeaturePlaces : public QObject
{
public:
    struct Place
    {
        GenApi::ICategory *category = nullptr;
        GenApi::IValue *parent = nullptr; ///< the category as a feature; null for the root
        int row = -1;                     ///< -1 for a feature that is not in the tree
    };

    /// Call first, and before there are other threads: cuts the circles below the root.
    void cutCircles(GenApi::ICategory &root) { m_features.cutCircles(root); }

    GenApi::FeatureList_t listOf(const GenApi::ICategory &category) const
    {
        return m_features.of(category);
    }
    int count(const GenApi::ICategory &category);

    /// Null behind the end of the category's list.
    GenApi::IValue *at(const GenApi::ICategory &category, int row);

    Place find(const GenApi::IValue *value, GenApi::ICategory &root);

    bool event(QEvent *event) override;

private:
    struct Hints
    {
        std::unordered_map<const GenApi::IValue *, Place> places;
        std::unordered_map<const GenApi::ICategory *, std::size_t> fingerprints;
    };

    GenApi::FeatureList_t fetch(const GenApi::ICategory &category);
    void keep(const GenApi::ICategory &category, GenApi::FeatureList_t list);
    void note(GenApi::ICategory &category, GenApi::IValue *value, Hints &hints) const;
    bool isRight(const Hints &hints, const GenApi::IValue *value);

    AcyclicFeatures m_features;
    std::shared_ptr<const Hints> m_hints; ///< replaced as a whole and atomically; null when void
    std::unordered_map<const GenApi::ICategory *, GenApi::FeatureList_t> m_longLists;
};

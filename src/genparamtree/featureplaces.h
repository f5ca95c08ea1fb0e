// SPDX-License-Identifier: MIT
#pragma once

#include "base/acyclicfeatures.h"

#include <QObject>

#include <cstddef>
#include <memory>
#include <unordered_map>

/// Finds the place at which a feature is listed first below a category, depth first and in row
/// order, without a search for each feature.
///
/// The places of features are stored as hints. A hint is used only if the categories from the root
/// down still contain the same entries. All hints become invalid when a category has another list
/// than before, because a feature may then have an earlier place, and when a feature is not at the
/// place of its hint. Then one walk over the tree finds all features.
///
/// Lists are fetched each time. Only lists so long that this would cost quadratic time are kept,
/// until the program returns to its event loop or the length is queried.
///
/// `find` may be called on any thread, the other functions only on the thread of the object.
class FeaturePlaces : public QObject
{
public:
    struct Place
    {
        GenApi::ICategory *category = nullptr;
        GenApi::IValue *parent = nullptr; ///< the category as a feature; null for the root
        int row = -1;                     ///< -1 when the feature is not in the tree
    };

    /// Call it first, before other threads use the object: breaks the cycles below the root.
    void breakCycles(GenApi::ICategory &root) { m_features.breakCycles(root); }

    GenApi::FeatureList_t listOf(const GenApi::ICategory &category) const
    {
        return m_features.of(category);
    }
    int count(const GenApi::ICategory &category);

    /// Null beyond the end of the category's list.
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
    std::shared_ptr<const Hints> m_hints; ///< replaced atomically; null when invalid
    std::unordered_map<const GenApi::ICategory *, GenApi::FeatureList_t> m_longLists;
};

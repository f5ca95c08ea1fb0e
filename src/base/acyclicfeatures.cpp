// SPDX-License-Identifier: MIT
#include "base/acyclicfeatures.h"

namespace {

GenApi::FeatureList_t listOf(const GenApi::ICategory &category)
{
    GenApi::FeatureList_t features;
    try {
        category.GetFeatures(features);
    } catch (const GenICam::GenericException &) {
        features.clear();
    }
    return features;
}

} // namespace

void AcyclicFeatures::breakCycles(GenApi::ICategory &root)
{
    m_cuts.clear();
    std::map<const GenApi::IValue *, State> states;
    visit(root, states);
}

void AcyclicFeatures::visit(GenApi::ICategory &category,
                            std::map<const GenApi::IValue *, State> &states)
{
    states[&category] = State::Entered;
    const GenApi::FeatureList_t features = listOf(category);
    for (size_t i = 0; i < features.size(); ++i) {
        const GenApi::CCategoryPtr child(features[i]);
        if (!child)
            continue;
        const auto known = states.find(features[i]);
        if (known == states.end())
            visit(*child, states);
        else if (known->second == State::Entered)
            m_cuts.emplace(&category, features[i]);
    }
    states[&category] = State::Left;
}

GenApi::FeatureList_t AcyclicFeatures::of(const GenApi::ICategory &category) const
{
    const GenApi::FeatureList_t listed = listOf(category);
    if (m_cuts.empty())
        return listed;
    GenApi::FeatureList_t features;
    for (size_t i = 0; i < listed.size(); ++i) {
        if (!m_cuts.count({&category, listed[i]}))
            features.push_back(listed[i]);
    }
    return features;
}

// SPDX-License-Identifier: MIT
#pragma once

#include "valuenode.h"

#include <vector>

namespace OrvGenApi {

/// A group of features. Its text is its name.
class CategoryNode : public ValueNode<GenApi::ICategory>
{
public:
    using ValueNode::ValueNode;

    /// Appends a feature; the same one may be listed more than once, here and elsewhere.
    void addFeature(Node &feature);

    void GetFeatures(GenApi::FeatureList_t &features) const override;
    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;

    /// Always throws.
    void FromString(const GenICam::gcstring &text, bool verify = true) override;
    bool IsValueCacheValid() const override { return true; }
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override
    {
        return GenApi::intfICategory;
    }

protected:
    void collectChildren(std::vector<Node *> &children, GenApi::ELinkType linkType) const override;

private:
    std::vector<Node *> m_features;
    /// The same as `IValue`, cached because clients query them often.
    GenApi::FeatureList_t m_values;
};

} // namespace OrvGenApi

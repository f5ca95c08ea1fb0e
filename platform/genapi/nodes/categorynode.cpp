// SPDX-License-Identifier: MIT
#include "categorynode.h"

#include "nodemapbase.h"

using namespace GenApi;

namespace OrvGenApi {

void CategoryNode::addFeature(Node &feature)
{
    auto *value = dynamic_cast<IValue *>(&feature);
    if (!value)
        return;
    map().markAsFeature(feature);
    m_features.push_back(&feature);
    m_values.push_back(value);
}

void CategoryNode::GetFeatures(FeatureList_t &features) const
{
    const AutoLock lock(map().GetLock());
    features = m_values;
}

GenICam::gcstring CategoryNode::ToString(bool, bool)
{
    return GetName();
}

void CategoryNode::FromString(const GenICam::gcstring &, bool)
{
    throw GenICam::AccessException(("The category '" + name() + "' has no value").c_str(), __FILE__,
                                   __LINE__);
}

void CategoryNode::collectChildren(std::vector<Node *> &children, ELinkType linkType) const
{
    if (linkType == ctReadingChildren)
        children = m_features;
}

} // namespace OrvGenApi

// SPDX-License-Identifier: MIT
#include "enumentrynode.h"

namespace OrvGenApi {

EnumEntryNode::EnumEntryNode(NodeMapBase &map, NodeProperties properties, EnumEntryProperties entry)
    : ValueNode(map, std::move(properties)), m_entry(std::move(entry))
{
}

double EnumEntryNode::GetNumericValue()
{
    return m_entry.numericValue.value_or(static_cast<double>(m_entry.value));
}

GenICam::gcstring EnumEntryNode::ToString(bool, bool)
{
    return GetSymbolic();
}

void EnumEntryNode::FromString(const GenICam::gcstring &, bool)
{
    throw GenICam::AccessException(("The entry '" + name() + "' is not writable").c_str(), __FILE__,
                                   __LINE__);
}

} // namespace OrvGenApi

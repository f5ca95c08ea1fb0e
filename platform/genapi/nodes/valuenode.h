// SPDX-License-Identifier: MIT
#pragma once

#include "node.h"

namespace OrvGenApi {

/// A node with one value interface.
template<typename Interface>
class ValueNode : public Node, public virtual Interface
{
public:
    using Node::Node;

    GenApi::INode *GetNode() override { return this; }
};

} // namespace OrvGenApi

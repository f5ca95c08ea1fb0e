// SPDX-License-Identifier: MIT
#pragma once

#include <Base/GCStringVector.h>
#include <GenApi/Types.h>

#include <vector>

namespace GenApi_3_0 {

struct INode;
struct IValue;

/// A list of nodes; the nodes belong to their node map.
class node_vector : public std::vector<INode *>
{
public:
    using std::vector<INode *>::vector;
};

/// A list of features; the features belong to their node map.
class value_vector : public std::vector<IValue *>
{
public:
    using std::vector<IValue *>::vector;
};

typedef node_vector NodeList_t;
typedef value_vector FeatureList_t;
typedef GenICam::gcstring_vector StringList_t;

} // namespace GenApi_3_0

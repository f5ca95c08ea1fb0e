// SPDX-License-Identifier: MIT
#pragma once

#include <Base/GCString.h>

#include <vector>

namespace GenICam_3_0 {

/// A list of strings.
class gcstring_vector : public std::vector<gcstring>
{
public:
    using std::vector<gcstring>::vector;
};

} // namespace GenICam_3_0

// SPDX-License-Identifier: MIT
#pragma once

#include <genapi/nodes/node.h>

#include <cstdint>

namespace OrvDescription {

// The values of nodes as numbers, for nodes that are computed from them: of any interface, without
// checks of access or range and without notifications. Precondition: the caller holds the lock of
// the node map. A node without a number throws `RuntimeException`.

int64_t rawInteger(OrvGenApi::Node &node);
double rawReal(OrvGenApi::Node &node);
void setRawInteger(OrvGenApi::Node &node, int64_t value);
void setRawReal(OrvGenApi::Node &node, double value);

/// True when the node's own value is a floating-point number.
bool isReal(const OrvGenApi::Node &node);

/// The nearest integer; the nearest limit for a number out of range.
int64_t toInteger(double value);

} // namespace OrvDescription

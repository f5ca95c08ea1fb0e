// SPDX-License-Identifier: MIT
#pragma once

#include <genapi/nodes/node.h>

#include <cstdint>

namespace OrvDescription {

// The numbers that nodes are computed from: the value of another node of any interface, read or
// stored without any check of access or range and without a notification. The caller holds the lock
// of the node map. A node that has no number throws `RuntimeException`.

int64_t rawInteger(OrvGenApi::Node &node);
double rawReal(OrvGenApi::Node &node);
void setRawInteger(OrvGenApi::Node &node, int64_t value);
void setRawReal(OrvGenApi::Node &node, double value);

/// True when the node's own value is a floating-point number.
bool isReal(const OrvGenApi::Node &node);

/// The nearest integer; the nearest end of the range for numbers beyond it.
int64_t toInteger(double value);

} // namespace OrvDescription

// SPDX-License-Identifier: MIT
#pragma once

namespace OrvDescription {

/// Exists while a node follows a reference to another one. Throws a `RuntimeException` for cyclic
/// references, and for chains that are too deep or visit too many nodes.
class ReferenceGuard
{
public:
    ReferenceGuard();
    ~ReferenceGuard();
    ReferenceGuard(const ReferenceGuard &) = delete;
    ReferenceGuard &operator=(const ReferenceGuard &) = delete;
};

} // namespace OrvDescription

// SPDX-License-Identifier: MIT
#pragma once

namespace OrvDescription {

/// Lives while a node follows a reference to another one. References that lead in a circle, too far
/// or to too many nodes end with a `RuntimeException`.
class ReferenceGuard
{
public:
    ReferenceGuard();
    ~ReferenceGuard();
    ReferenceGuard(const ReferenceGuard &) = delete;
    ReferenceGuard &operator=(const ReferenceGuard &) = delete;
};

} // namespace OrvDescription

// SPDX-License-Identifier: MIT
#pragma once

#include "rangednode.h"

namespace OrvGenApi {

/// A floating-point feature with its checks and caches.
class FloatNode : public RangedNode<GenApi::IFloat, double, GenApi::double_autovector_t>
{
public:
    using RangedNode::RangedNode;

    GenApi::IFloat &operator=(double value) override;
    bool HasInc() override { return GetIncMode() == GenApi::fixedIncrement; }

    /// 0 when there is no increment.
    double GetInc() override;
    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;
    void FromString(const GenICam::gcstring &text, bool verify = true) override;
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override { return GenApi::intfIFloat; }
};

} // namespace OrvGenApi

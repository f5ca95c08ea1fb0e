// SPDX-License-Identifier: MIT
#pragma once

#include "rangednode.h"

namespace OrvGenApi {

/// An integer feature with its checks and caches.
class IntegerNode : public RangedNode<GenApi::IInteger, int64_t, GenApi::int64_autovector_t>
{
public:
    using RangedNode::RangedNode;

    GenApi::IInteger &operator=(int64_t value) override;
    int64_t GetInc() override;
    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;
    void FromString(const GenICam::gcstring &text, bool verify = true) override;
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override
    {
        return GenApi::intfIInteger;
    }
};

} // namespace OrvGenApi

// SPDX-License-Identifier: MIT
#pragma once

#include "valuenode.h"

namespace OrvGenApi {

/// A Boolean with its checks and cache.
class BooleanNode : public ValueNode<GenApi::IBoolean>
{
public:
    using ValueNode::ValueNode;

    void SetValue(bool value, bool verify = true) override;
    GenApi::IBoolean &operator=(bool value) override;
    bool GetValue(bool verify = false, bool ignoreCache = false) const override;
    bool operator()() const override { return GetValue(); }
    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;
    void FromString(const GenICam::gcstring &text, bool verify = true) override;
    bool IsValueCacheValid() const override;
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override
    {
        return GenApi::intfIBoolean;
    }
    void dropCache() override;

    /// For nodes that are computed from this one: the value without any check, and a store that
    /// neither checks nor notifies. The caller holds the lock.
    bool unverifiedValue() const;
    void storeUnverified(bool value) { writeValue(value); }

protected:
    virtual bool readValue() const = 0;
    virtual void writeValue(bool value) = 0;

private:
    mutable Cached<bool> m_value;
};

} // namespace OrvGenApi

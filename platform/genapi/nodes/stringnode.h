// SPDX-License-Identifier: MIT
#pragma once

#include "valuenode.h"

#include <string>

namespace OrvGenApi {

/// A text with its checks and cache.
class StringNode : public ValueNode<GenApi::IString>
{
public:
    using ValueNode::ValueNode;

    void SetValue(const GenICam::gcstring &value, bool verify = true) override;
    GenApi::IString &operator=(const GenICam::gcstring &value) override;
    GenICam::gcstring GetValue(bool verify = false, bool ignoreCache = false) override;
    GenICam::gcstring operator()() override { return GetValue(); }
    GenICam::gcstring operator*() override { return GetValue(); }
    int64_t GetMaxLength(bool verify = false) override;
    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;
    void FromString(const GenICam::gcstring &text, bool verify = true) override;
    bool IsValueCacheValid() const override;
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override
    {
        return GenApi::intfIString;
    }
    void dropCache() override;

    /// For nodes that are computed from this one: the value without any check, and a store that
    /// neither checks nor notifies. The caller holds the lock.
    std::string unverifiedValue();
    void storeUnverified(const std::string &value) { writeValue(value); }

protected:
    virtual std::string readValue() = 0;
    virtual void writeValue(const std::string &value) = 0;

    /// In bytes.
    virtual int64_t readMaxLength() = 0;

private:
    Cached<std::string> m_value;
    Cached<int64_t> m_maxLength;
};

} // namespace OrvGenApi

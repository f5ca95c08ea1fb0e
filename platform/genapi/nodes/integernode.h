// SPDX-License-Identifier: MIT
#pragma once

#include "valuenode.h"

#include <optional>
#include <vector>

namespace OrvGenApi {

/// An integer feature with its checks and caches.
class GENAPI_DECL IntegerNode : public ValueNode<GenApi::IInteger>
{
public:
    using ValueNode::ValueNode;

    void SetValue(int64_t value, bool verify = true) override;
    GenApi::IInteger &operator=(int64_t value) override;
    int64_t GetValue(bool verify = false, bool ignoreCache = false) override;
    int64_t operator()() override { return GetValue(); }
    int64_t operator*() override { return GetValue(); }
    int64_t GetMin() override;
    int64_t GetMax() override;
    GenApi::EIncMode GetIncMode() override;
    int64_t GetInc() override;
    GenApi::int64_autovector_t GetListOfValidValues(bool bounded = true) override;
    void ImposeMin(int64_t value) override;
    void ImposeMax(int64_t value) override;
    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;
    void FromString(const GenICam::gcstring &text, bool verify = true) override;
    bool IsValueCacheValid() const override;
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override
    {
        return GenApi::intfIInteger;
    }
    void dropCache() override;

    /// For nodes that are computed from this one: the value without any check, and a store that
    /// neither checks nor tells anybody. The caller holds the lock.
    int64_t unverifiedValue();
    void storeUnverified(int64_t value) { writeValue(value); }

protected:
    virtual int64_t readValue() = 0;
    virtual void writeValue(int64_t value) = 0;
    virtual int64_t readMin() = 0;
    virtual int64_t readMax() = 0;

    /// Nothing when every value within the limits is valid.
    virtual std::optional<int64_t> readInc() = 0;

    /// Empty when the feature has no list of valid values.
    virtual std::vector<int64_t> validValues() const { return {}; }

private:
    void checkRange(int64_t value);
    std::vector<int64_t> boundedValues(bool bounded);
    std::optional<int64_t> increment();

    Cached<int64_t> m_value;
    Cached<int64_t> m_min;
    Cached<int64_t> m_max;
    Cached<std::optional<int64_t>> m_inc;
    std::optional<int64_t> m_imposedMin;
    std::optional<int64_t> m_imposedMax;
};

} // namespace OrvGenApi

// SPDX-License-Identifier: MIT
#pragma once

#include "valuenode.h"

#include <optional>
#include <vector>

namespace OrvGenApi {

/// A floating-point feature with its checks and caches.
class GENAPI_DECL FloatNode : public ValueNode<GenApi::IFloat>
{
public:
    using ValueNode::ValueNode;

    void SetValue(double value, bool verify = true) override;
    GenApi::IFloat &operator=(double value) override;
    double GetValue(bool verify = false, bool ignoreCache = false) override;
    double operator()() override { return GetValue(); }
    double operator*() override { return GetValue(); }
    double GetMin() override;
    double GetMax() override;
    bool HasInc() override { return GetIncMode() == GenApi::fixedIncrement; }
    GenApi::EIncMode GetIncMode() override;

    /// 0 when there is no increment.
    double GetInc() override;
    GenApi::double_autovector_t GetListOfValidValues(bool bounded = true) override;
    void ImposeMin(double value) override;
    void ImposeMax(double value) override;
    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;
    void FromString(const GenICam::gcstring &text, bool verify = true) override;
    bool IsValueCacheValid() const override;
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override { return GenApi::intfIFloat; }
    void dropCache() override;

    /// For nodes that are computed from this one: the value without any check, and a store that
    /// neither checks nor tells anybody. The caller holds the lock.
    double unverifiedValue();
    void storeUnverified(double value) { writeValue(value); }

protected:
    virtual double readValue() = 0;
    virtual void writeValue(double value) = 0;
    virtual double readMin() = 0;
    virtual double readMax() = 0;

    /// Nothing when every value within the limits is valid.
    virtual std::optional<double> readInc() = 0;

    /// Empty when the feature has no list of valid values.
    virtual std::vector<double> validValues() const { return {}; }

private:
    void checkRange(double value);
    std::optional<double> increment();

    Cached<double> m_value;
    Cached<double> m_min;
    Cached<double> m_max;
    Cached<std::optional<double>> m_inc;
    std::optional<double> m_imposedMin;
    std::optional<double> m_imposedMax;
};

} // namespace OrvGenApi

// SPDX-License-Identifier: MIT
#pragma once

#include "nodemapbase.h"
#include "numbers.h"
#include "valuenode.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace OrvGenApi {

/// The common part of integers and floating-point numbers: a number with limits, an increment or a
/// list of valid values. `Interface` is `IInteger` or `IFloat`, `T` its number, `List` its list
/// type.
template<typename Interface, typename T, typename List>
class RangedNode : public ValueNode<Interface>
{
public:
    using ValueNode<Interface>::ValueNode;

    void SetValue(T value, bool verify = true) override
    {
        this->write(
            [&] {
                if (!verify)
                    return;
                this->requireWritable();
                checkRange(value);
            },
            [&] { writeValue(value); });
    }

    T GetValue(bool verify = false, bool ignoreCache = false) override
    {
        if (ignoreCache)
            this->map().refresh(*this);
        return this->map().answer([&] {
            this->requireReadable();
            const T value = unverifiedValue();
            if (verify)
                checkRange(value);
            return value;
        });
    }

    T operator()() override { return GetValue(); }
    T operator*() override { return GetValue(); }

    T GetMin() override
    {
        return this->map().answer([this] {
            const T limit = m_min.get(this->limitsAreCachable(), [this] { return readMin(); });
            return m_imposedMin ? std::max(limit, *m_imposedMin) : limit;
        });
    }

    T GetMax() override
    {
        return this->map().answer([this] {
            const T limit = m_max.get(this->limitsAreCachable(), [this] { return readMax(); });
            return m_imposedMax ? std::min(limit, *m_imposedMax) : limit;
        });
    }

    GenApi::EIncMode GetIncMode() override
    {
        return this->map().answer([this] {
            if (!validValues().empty())
                return GenApi::listIncrement;
            return increment() ? GenApi::fixedIncrement : GenApi::noIncrement;
        });
    }

    List GetListOfValidValues(bool bounded = true) override
    {
        const std::vector<T> values = this->map().answer([&] {
            std::vector<T> all = validValues();
            if (all.empty() || !bounded)
                return all;
            const auto [min, max] = bounds();
            all.erase(std::remove_if(all.begin(), all.end(),
                                     [min = min, max = max](T v) { return v < min || v > max; }),
                      all.end());
            return all;
        });
        List result(values.size());
        for (std::size_t i = 0; i < values.size(); ++i)
            result[i] = values[i];
        return result;
    }

    void ImposeMin(T value) override
    {
        const GenApi::AutoLock lock(this->map().GetLock());
        m_imposedMin = value;
    }

    void ImposeMax(T value) override
    {
        const GenApi::AutoLock lock(this->map().GetLock());
        m_imposedMax = value;
    }

    bool IsValueCacheValid() const override
    {
        const GenApi::AutoLock lock(this->map().GetLock());
        return m_value.isValid();
    }

    void dropCache() override
    {
        Node::dropCache();
        m_value.drop();
        m_min.drop();
        m_max.drop();
        m_inc.drop();
    }

    /// For nodes that are computed from this one: the value without any check, and a store that
    /// neither checks nor notifies. The caller holds the lock.
    T unverifiedValue()
    {
        return m_value.get(this->valueIsCachable(), [this] { return readValue(); });
    }
    void storeUnverified(T value) { writeValue(value); }

protected:
    virtual T readValue() = 0;
    virtual void writeValue(T value) = 0;
    virtual T readMin() = 0;
    virtual T readMax() = 0;

    /// Empty when every value within the limits is valid.
    virtual std::optional<T> readInc() = 0;

    /// Empty when the feature has no list of valid values.
    virtual std::vector<T> validValues() const { return {}; }

    std::optional<T> increment()
    {
        return m_inc.get(this->limitsAreCachable(), [this] { return readInc(); });
    }

private:
    std::pair<T, T> bounds()
    {
        std::pair<T, T> result;
        Gather gather;
        gather([&] { result.first = GetMin(); });
        gather([&] { result.second = GetMax(); });
        gather.finish();
        return result;
    }

    void checkRange(T value)
    {
        const auto fail = [&](const std::string &why) {
            const std::string text =
                "The value " + numberText(value) + " of '" + this->name() + "' " + why;
            throw GenICam::OutOfRangeException(text.c_str(), __FILE__, __LINE__);
        };
        std::optional<T> inc;
        Gather gather;
        gather([&] { bounds(); });
        gather([&] { inc = increment(); });
        gather.finish();
        const auto [min, max] = bounds();
        if (!(value >= min)) // NaN is in no range
            fail("is below the minimum " + numberText(min));
        if (value > max)
            fail("is above the maximum " + numberText(max));

        const std::vector<T> values = validValues();
        if (!values.empty()) {
            if (std::none_of(values.begin(), values.end(), [&](T v) { return areSame(v, value); }))
                fail("is not one of the valid values");
            return;
        }
        if (inc && !isOnIncrement(value, min, *inc))
            fail("is not the minimum " + numberText(min) + " plus a multiple of " +
                 numberText(*inc));
    }

    Cached<T> m_value;
    Cached<T> m_min;
    Cached<T> m_max;
    Cached<std::optional<T>> m_inc;
    std::optional<T> m_imposedMin;
    std::optional<T> m_imposedMax;
};

} // namespace OrvGenApi

// SPDX-License-Identifier: MIT
#include "floatnode.h"

#include "nodemapbase.h"
#include "numbers.h"

#include <algorithm>
#include <cmath>

using namespace GenApi;

namespace OrvGenApi {

namespace {

std::string text(double value)
{
    return floatToText(value, fnAutomatic, 10);
}

} // namespace

void FloatNode::SetValue(double value, bool verify)
{
    write(
        [&] {
            if (!verify)
                return;
            requireWritable();
            checkRange(value);
        },
        [&] { writeValue(value); });
}

IFloat &FloatNode::operator=(double value)
{
    SetValue(value);
    return *this;
}

double FloatNode::GetValue(bool verify, bool ignoreCache)
{
    const AutoLock lock(map().GetLock());
    requireReadable();
    if (ignoreCache)
        map().invalidate({this});
    const double value = unverifiedValue();
    if (verify)
        checkRange(value);
    return value;
}

double FloatNode::GetMin()
{
    const AutoLock lock(map().GetLock());
    const double limit = m_min.get(limitsAreCachable(), [this] { return readMin(); });
    return m_imposedMin ? std::max(limit, *m_imposedMin) : limit;
}

double FloatNode::GetMax()
{
    const AutoLock lock(map().GetLock());
    const double limit = m_max.get(limitsAreCachable(), [this] { return readMax(); });
    return m_imposedMax ? std::min(limit, *m_imposedMax) : limit;
}

std::optional<double> FloatNode::increment()
{
    return m_inc.get(limitsAreCachable(), [this] { return readInc(); });
}

EIncMode FloatNode::GetIncMode()
{
    const AutoLock lock(map().GetLock());
    if (!validValues().empty())
        return listIncrement;
    return increment() ? fixedIncrement : noIncrement;
}

double FloatNode::GetInc()
{
    const AutoLock lock(map().GetLock());
    return increment().value_or(0.0);
}

double_autovector_t FloatNode::GetListOfValidValues(bool bounded)
{
    const AutoLock lock(map().GetLock());
    std::vector<double> values = validValues();
    if (!values.empty() && bounded) {
        const double min = GetMin();
        const double max = GetMax();
        values.erase(std::remove_if(values.begin(), values.end(),
                                    [&](double v) { return v < min || v > max; }),
                     values.end());
    }
    double_autovector_t result(values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        result[i] = values[i];
    return result;
}

void FloatNode::ImposeMin(double value)
{
    const AutoLock lock(map().GetLock());
    m_imposedMin = value;
}

void FloatNode::ImposeMax(double value)
{
    const AutoLock lock(map().GetLock());
    m_imposedMax = value;
}

void FloatNode::checkRange(double value)
{
    const auto fail = [&](const std::string &why) {
        const std::string message = "The value " + text(value) + " of '" + name() + "' " + why;
        throw GenICam::OutOfRangeException(message.c_str(), __FILE__, __LINE__);
    };
    if (std::isnan(value))
        fail("is not a number");
    const double min = GetMin();
    const double max = GetMax();
    if (value < min)
        fail("is below the minimum " + text(min));
    if (value > max)
        fail("is above the maximum " + text(max));

    const std::vector<double> values = validValues();
    if (!values.empty()) {
        const auto same = [&](double v) {
            return std::abs(v - value) <= 1e-9 * std::max(std::abs(v), std::abs(value));
        };
        if (std::none_of(values.begin(), values.end(), same))
            fail("is not one of the valid values");
        return;
    }
    if (!isOnIncrement(value, min, GetInc()))
        fail("is not the minimum " + text(min) + " plus a multiple of " + text(GetInc()));
}

GenICam::gcstring FloatNode::ToString(bool verify, bool ignoreCache)
{
    return floatToText(GetValue(verify, ignoreCache), GetDisplayNotation(), GetDisplayPrecision())
        .c_str();
}

void FloatNode::FromString(const GenICam::gcstring &valueText, bool verify)
{
    const auto value = floatFromText(valueText.c_str());
    if (!value)
        throw GenICam::InvalidArgumentException(
            ("'" + std::string(valueText.c_str()) + "' is no number for '" + name() + "'").c_str(),
            __FILE__, __LINE__);
    SetValue(*value, verify);
}

bool FloatNode::IsValueCacheValid() const
{
    const AutoLock lock(map().GetLock());
    return m_value.isValid();
}

double FloatNode::unverifiedValue()
{
    return m_value.get(valueIsCachable(), [this] { return readValue(); });
}

void FloatNode::dropCache()
{
    Node::dropCache();
    m_value.drop();
    m_min.drop();
    m_max.drop();
    m_inc.drop();
}

} // namespace OrvGenApi

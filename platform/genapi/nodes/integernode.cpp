// SPDX-License-Identifier: MIT
#include "integernode.h"

#include "nodemapbase.h"
#include "numbers.h"

#include <algorithm>

using namespace GenApi;

namespace OrvGenApi {

void IntegerNode::SetValue(int64_t value, bool verify)
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

IInteger &IntegerNode::operator=(int64_t value)
{
    SetValue(value);
    return *this;
}

int64_t IntegerNode::GetValue(bool verify, bool ignoreCache)
{
    const AutoLock lock(map().GetLock());
    requireReadable();
    if (ignoreCache)
        map().invalidate({this});
    const int64_t value = unverifiedValue();
    if (verify)
        checkRange(value);
    return value;
}

int64_t IntegerNode::GetMin()
{
    const AutoLock lock(map().GetLock());
    const int64_t limit = m_min.get(limitsAreCachable(), [this] { return readMin(); });
    return m_imposedMin ? std::max(limit, *m_imposedMin) : limit;
}

int64_t IntegerNode::GetMax()
{
    const AutoLock lock(map().GetLock());
    const int64_t limit = m_max.get(limitsAreCachable(), [this] { return readMax(); });
    return m_imposedMax ? std::min(limit, *m_imposedMax) : limit;
}

std::optional<int64_t> IntegerNode::increment()
{
    return m_inc.get(limitsAreCachable(), [this] { return readInc(); });
}

EIncMode IntegerNode::GetIncMode()
{
    const AutoLock lock(map().GetLock());
    if (!validValues().empty())
        return listIncrement;
    return increment() ? fixedIncrement : noIncrement;
}

int64_t IntegerNode::GetInc()
{
    const AutoLock lock(map().GetLock());
    return increment().value_or(1);
}

std::vector<int64_t> IntegerNode::boundedValues(bool bounded)
{
    std::vector<int64_t> values = validValues();
    if (values.empty() || !bounded)
        return values;
    const int64_t min = GetMin();
    const int64_t max = GetMax();
    values.erase(
        std::remove_if(values.begin(), values.end(), [&](int64_t v) { return v < min || v > max; }),
        values.end());
    return values;
}

int64_autovector_t IntegerNode::GetListOfValidValues(bool bounded)
{
    const AutoLock lock(map().GetLock());
    const std::vector<int64_t> values = boundedValues(bounded);
    int64_autovector_t result(values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        result[i] = values[i];
    return result;
}

void IntegerNode::ImposeMin(int64_t value)
{
    const AutoLock lock(map().GetLock());
    m_imposedMin = value;
}

void IntegerNode::ImposeMax(int64_t value)
{
    const AutoLock lock(map().GetLock());
    m_imposedMax = value;
}

void IntegerNode::checkRange(int64_t value)
{
    const auto fail = [&](const std::string &why) {
        const std::string text =
            "The value " + std::to_string(value) + " of '" + name() + "' " + why;
        throw GenICam::OutOfRangeException(text.c_str(), __FILE__, __LINE__);
    };
    const int64_t min = GetMin();
    const int64_t max = GetMax();
    if (value < min)
        fail("is below the minimum " + std::to_string(min));
    if (value > max)
        fail("is above the maximum " + std::to_string(max));

    const std::vector<int64_t> values = validValues();
    if (!values.empty()) {
        if (std::find(values.begin(), values.end(), value) == values.end())
            fail("is not one of the valid values");
        return;
    }
    const int64_t inc = GetInc();
    if (!isOnIncrement(value, min, inc))
        fail("is not the minimum " + std::to_string(min) + " plus a multiple of " +
             std::to_string(inc));
}

GenICam::gcstring IntegerNode::ToString(bool verify, bool ignoreCache)
{
    return integerToText(GetValue(verify, ignoreCache), GetRepresentation()).c_str();
}

void IntegerNode::FromString(const GenICam::gcstring &text, bool verify)
{
    const auto value = integerFromText(text.c_str());
    if (!value)
        throw GenICam::InvalidArgumentException(
            ("'" + std::string(text.c_str()) + "' is no integer for '" + name() + "'").c_str(),
            __FILE__, __LINE__);
    SetValue(*value, verify);
}

bool IntegerNode::IsValueCacheValid() const
{
    const AutoLock lock(map().GetLock());
    return m_value.isValid();
}

int64_t IntegerNode::unverifiedValue()
{
    return m_value.get(valueIsCachable(), [this] { return readValue(); });
}

void IntegerNode::dropCache()
{
    Node::dropCache();
    m_value.drop();
    m_min.drop();
    m_max.drop();
    m_inc.drop();
}

} // namespace OrvGenApi

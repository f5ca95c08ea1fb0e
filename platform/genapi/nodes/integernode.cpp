// SPDX-License-Identifier: MIT
#include "integernode.h"

using namespace GenApi;

namespace OrvGenApi {

IInteger &IntegerNode::operator=(int64_t value)
{
    SetValue(value);
    return *this;
}

int64_t IntegerNode::GetInc()
{
    return map().answer([this] { return increment().value_or(1); });
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

} // namespace OrvGenApi

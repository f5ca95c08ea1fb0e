// SPDX-License-Identifier: MIT
#include "floatnode.h"

using namespace GenApi;

namespace OrvGenApi {

IFloat &FloatNode::operator=(double value)
{
    SetValue(value);
    return *this;
}

double FloatNode::GetInc()
{
    return map().answer([this] { return increment().value_or(0.0); });
}

GenICam::gcstring FloatNode::ToString(bool verify, bool ignoreCache)
{
    return floatToText(GetValue(verify, ignoreCache), GetDisplayNotation(), GetDisplayPrecision())
        .c_str();
}

void FloatNode::FromString(const GenICam::gcstring &text, bool verify)
{
    const auto value = floatFromText(text.c_str());
    if (!value)
        throw GenICam::InvalidArgumentException(
            ("'" + std::string(text.c_str()) + "' is no number for '" + name() + "'").c_str(),
            __FILE__, __LINE__);
    SetValue(*value, verify);
}

} // namespace OrvGenApi

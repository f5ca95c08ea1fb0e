// SPDX-License-Identifier: MIT
#include "rawvalue.h"

#include "referenceguard.h"

#include <genapi/nodes/booleannode.h>
#include <genapi/nodes/enumerationnode.h>
#include <genapi/nodes/floatnode.h>
#include <genapi/nodes/integernode.h>

#include <cmath>

using namespace OrvGenApi;

namespace OrvDescription {

namespace {

[[noreturn]] void notANumber(const Node &node)
{
    throw GenICam::RuntimeException(("The node '" + node.name() + "' is no number").c_str(),
                                    __FILE__, __LINE__);
}

} // namespace

int64_t toInteger(double value)
{
    if (std::isnan(value))
        throw GenICam::OutOfRangeException("Not a number", __FILE__, __LINE__);
    const double rounded = std::round(value);
    if (rounded >= 9223372036854775808.0)
        return INT64_MAX;
    if (rounded < -9223372036854775808.0)
        return INT64_MIN;
    return static_cast<int64_t>(rounded);
}

bool isReal(const Node &node)
{
    return node.GetPrincipalInterfaceType() == GenApi::intfIFloat;
}

int64_t rawInteger(Node &node)
{
    const ReferenceGuard guard;
    switch (node.GetPrincipalInterfaceType()) {
    case GenApi::intfIInteger:
        return dynamic_cast<IntegerNode &>(node).unverifiedValue();
    case GenApi::intfIFloat:
        return toInteger(dynamic_cast<FloatNode &>(node).unverifiedValue());
    case GenApi::intfIBoolean:
        return dynamic_cast<BooleanNode &>(node).unverifiedValue() ? 1 : 0;
    case GenApi::intfIEnumeration:
        return dynamic_cast<EnumerationNode &>(node).unverifiedValue();
    case GenApi::intfIEnumEntry:
        return dynamic_cast<EnumEntryNode &>(node).GetValue();
    default:
        notANumber(node);
    }
}

double rawReal(Node &node)
{
    if (!isReal(node))
        return static_cast<double>(rawInteger(node));
    const ReferenceGuard guard;
    return dynamic_cast<FloatNode &>(node).unverifiedValue();
}

void setRawInteger(Node &node, int64_t value)
{
    const ReferenceGuard guard;
    switch (node.GetPrincipalInterfaceType()) {
    case GenApi::intfIInteger:
        return dynamic_cast<IntegerNode &>(node).storeUnverified(value);
    case GenApi::intfIFloat:
        return dynamic_cast<FloatNode &>(node).storeUnverified(static_cast<double>(value));
    case GenApi::intfIBoolean:
        return dynamic_cast<BooleanNode &>(node).storeUnverified(value != 0);
    case GenApi::intfIEnumeration:
        return dynamic_cast<EnumerationNode &>(node).storeUnverified(value);
    default:
        notANumber(node);
    }
}

void setRawReal(Node &node, double value)
{
    if (!isReal(node))
        return setRawInteger(node, toInteger(value));
    const ReferenceGuard guard;
    dynamic_cast<FloatNode &>(node).storeUnverified(value);
}

} // namespace OrvDescription

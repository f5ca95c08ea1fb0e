// SPDX-License-Identifier: MIT
#include "describednodes.h"

#include "rawvalue.h"

#include <genapi/nodes/nodemapbase.h>

using namespace GenApi;
using namespace OrvGenApi;

namespace OrvDescription {

namespace {

template<typename Limit, typename Read, typename Fallback>
auto limitOr(const Limit &limit, Read read, Fallback fallback) -> decltype(fallback())
{
    if (limit.value)
        return *limit.value;
    if (limit.node)
        return read(*limit.node);
    return fallback();
}

} // namespace

// DescribedInteger

ERepresentation DescribedInteger::GetRepresentation()
{
    if (presentation.representation)
        return *presentation.representation;
    Node *other = delegate();
    if (auto *integer = dynamic_cast<IInteger *>(other))
        return integer->GetRepresentation();
    if (auto *real = dynamic_cast<IFloat *>(other))
        return real->GetRepresentation();
    return PureNumber;
}

GenICam::gcstring DescribedInteger::GetUnit()
{
    if (presentation.unit)
        return presentation.unit->c_str();
    Node *other = delegate();
    if (auto *integer = dynamic_cast<IInteger *>(other))
        return integer->GetUnit();
    if (auto *real = dynamic_cast<IFloat *>(other))
        return real->GetUnit();
    return "";
}

int64_t DescribedInteger::readMin()
{
    return limitOr(limits.min, rawInteger, [this] { return source().minInteger(); });
}

int64_t DescribedInteger::readMax()
{
    return limitOr(limits.max, rawInteger, [this] { return source().maxInteger(); });
}

std::optional<int64_t> DescribedInteger::readInc()
{
    if (!limits.inc.isStated())
        return source().incInteger();
    return limitOr(limits.inc, rawInteger, [] { return int64_t(1); });
}

std::vector<int64_t> DescribedInteger::validValues() const
{
    if (!limits.validValues.empty())
        return limits.validValues;
    const auto *integer = dynamic_cast<DescribedInteger *>(delegate());
    return integer ? integer->validValues() : limits.validValues;
}

// DescribedFloat

ERepresentation DescribedFloat::GetRepresentation()
{
    if (presentation.representation)
        return *presentation.representation;
    Node *other = delegate();
    if (auto *real = dynamic_cast<IFloat *>(other))
        return real->GetRepresentation();
    if (auto *integer = dynamic_cast<IInteger *>(other))
        return integer->GetRepresentation();
    return PureNumber;
}

GenICam::gcstring DescribedFloat::GetUnit() const
{
    if (presentation.unit)
        return presentation.unit->c_str();
    Node *other = delegate();
    if (auto *real = dynamic_cast<IFloat *>(other))
        return real->GetUnit();
    if (auto *integer = dynamic_cast<IInteger *>(other))
        return integer->GetUnit();
    return "";
}

EDisplayNotation DescribedFloat::GetDisplayNotation() const
{
    if (presentation.notation)
        return *presentation.notation;
    const auto *real = dynamic_cast<IFloat *>(delegate());
    return real ? real->GetDisplayNotation() : fnAutomatic;
}

int64_t DescribedFloat::GetDisplayPrecision() const
{
    if (presentation.precision)
        return *presentation.precision;
    const auto *real = dynamic_cast<IFloat *>(delegate());
    return real ? real->GetDisplayPrecision() : 6;
}

double DescribedFloat::readMin()
{
    return limitOr(limits.min, rawReal, [this] { return source().minReal(); });
}

double DescribedFloat::readMax()
{
    return limitOr(limits.max, rawReal, [this] { return source().maxReal(); });
}

std::optional<double> DescribedFloat::readInc()
{
    if (!limits.inc.isStated())
        return source().incReal();
    return limitOr(limits.inc, rawReal, [] { return 0.0; });
}

std::vector<double> DescribedFloat::validValues() const
{
    if (!limits.validValues.empty())
        return limits.validValues;
    const auto *real = dynamic_cast<DescribedFloat *>(delegate());
    return real ? real->validValues() : limits.validValues;
}

// DescribedCommand

int64_t DescribedCommand::valueToWrite()
{
    return limitOr(commandValue, rawInteger, [] { return int64_t(1); });
}

void DescribedCommand::execute()
{
    source().setInteger(valueToWrite());
    // The camera goes on from here by itself: what was just written is no longer what it holds.
    for (Node *node : links().written)
        node->dropRegister();
}

bool DescribedCommand::readIsDone()
{
    if (!IsReadable(source().accessMode()))
        return true;
    // Only what the command itself is read from: nothing has happened to its dependents.
    for (Node *node : links().written) {
        node->dropRegister();
        node->dropCache();
    }
    return source().integer() != valueToWrite();
}

// DescribedString

EAccessMode DescribedString::ownAccessMode() const
{
    if (reference)
        return reference->GetAccessMode();
    if (links().reg)
        return registerMode;
    return constant ? RW : NA;
}

std::string DescribedString::readValue()
{
    if (links().isUnusable)
        throw GenICam::PropertyException(
            ("The description gives '" + name() + "' no value").c_str(), __FILE__, __LINE__);
    if (reference)
        return reference->unverifiedValue();
    if (links().reg)
        return links().reg->text();
    return constant.value_or(std::string());
}

void DescribedString::writeValue(const std::string &value)
{
    if (reference)
        reference->storeUnverified(value);
    else if (links().reg)
        links().reg->setText(value);
    else
        constant = value;
}

int64_t DescribedString::readMaxLength()
{
    if (reference && !links().isUnusable)
        return reference->GetMaxLength();
    if (links().reg)
        return links().reg->maxTextLength();
    return INT64_MAX;
}

// DescribedRegister

RegisterAccess &DescribedRegister::reg() const
{
    if (links().isUnusable || !links().reg)
        throw GenICam::PropertyException(
            ("The description of the register '" + name() + "' makes no sense").c_str(), __FILE__,
            __LINE__);
    return *links().reg;
}

int64_t DescribedRegister::GetAddress(bool)
{
    const AutoLock lock(map().GetLock());
    return reg().address();
}

void DescribedRegister::writeBytes(const std::vector<uint8_t> &bytes)
{
    std::vector<uint8_t> contents = bytes;
    const auto length = static_cast<std::size_t>(reg().length());
    if (contents.size() < length) {
        const std::vector<uint8_t> present = reg().bytes();
        contents.insert(contents.end(),
                        present.begin() + static_cast<std::ptrdiff_t>(contents.size()),
                        present.end());
    }
    reg().setBytes(contents);
}

// PlainNode

PlainNode::PlainNode(EInterfaceType type, NodeLinks &nodeLinks, NodeMapBase &map,
                     NodeProperties properties)
    : DescribedNode(nodeLinks, map, std::move(properties)), m_type(type)
{
}

// MissingFeature

GenICam::gcstring MissingFeature::ToString(bool, bool)
{
    throw GenICam::AccessException(
        ("The description lists the feature '" + name() + "', but does not describe it").c_str(),
        __FILE__, __LINE__);
}

void MissingFeature::FromString(const GenICam::gcstring &, bool)
{
    ToString();
}

} // namespace OrvDescription

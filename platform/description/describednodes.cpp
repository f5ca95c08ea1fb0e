// SPDX-License-Identifier: MIT
#include "describednodes.h"

#include "description.h"
#include "rawvalue.h"

#include <cameraio/limits.h>

#include <genapi/nodes/nodemapbase.h>
#include <genapi/nodes/numbers.h>

using namespace GenApi;
using namespace OrvGenApi;
namespace Limits = OrvCameraIo::Limits;

namespace OrvDescription {

namespace {

template<typename T>
const StatedLimits<T> &orNone(const std::unique_ptr<StatedLimits<T>> &limits)
{
    static const StatedLimits<T> none;
    return limits ? *limits : none;
}

template<typename Limit, typename Read, typename Fallback>
auto limitOr(const Limit &limit, Read read, Fallback fallback) -> decltype(fallback())
{
    if (limit.value)
        return *limit.value;
    if (limit.node)
        return read(*limit.node);
    return fallback();
}

std::optional<std::string_view> stated(const NodeLinks &links, std::string_view tag)
{
    const DescriptionProperty *property = links.description->find(tag);
    return property ? std::optional<std::string_view>(property->text) : std::nullopt;
}

std::optional<ERepresentation> representationOf(std::optional<std::string_view> text)
{
    static const std::pair<const char *, ERepresentation> representations[] = {
        {"Linear", Linear},         {"Logarithmic", Logarithmic}, {"Boolean", Boolean},
        {"PureNumber", PureNumber}, {"HexNumber", HexNumber},     {"IPV4Address", IPV4Address},
        {"MACAddress", MACAddress}};
    for (const auto &[name, representation] : representations) {
        if (text && *text == name)
            return representation;
    }
    return std::nullopt;
}

std::optional<EDisplayNotation> notationOf(std::optional<std::string_view> text)
{
    static const std::pair<const char *, EDisplayNotation> notations[] = {
        {"Automatic", fnAutomatic}, {"Fixed", fnFixed}, {"Scientific", fnScientific}};
    for (const auto &[name, notation] : notations) {
        if (text && *text == name)
            return notation;
    }
    return std::nullopt;
}

/// The representation in the description of the node, otherwise that of the node with its value.
ERepresentation representationOf(const NodeLinks &links, Node *delegate)
{
    if (const auto own = representationOf(stated(links, "Representation")))
        return *own;
    if (auto *integer = dynamic_cast<IInteger *>(delegate))
        return integer->GetRepresentation();
    if (auto *real = dynamic_cast<IFloat *>(delegate))
        return real->GetRepresentation();
    return PureNumber;
}

GenICam::gcstring unitOf(const NodeLinks &links, Node *delegate)
{
    if (const auto own = stated(links, "Unit"))
        return {own->data(), own->size()};
    if (auto *integer = dynamic_cast<IInteger *>(delegate))
        return integer->GetUnit();
    if (auto *real = dynamic_cast<IFloat *>(delegate))
        return real->GetUnit();
    return "";
}

} // namespace

// DescribedInteger

ERepresentation DescribedInteger::GetRepresentation()
{
    return representationOf(links(), delegate());
}

GenICam::gcstring DescribedInteger::GetUnit()
{
    return unitOf(links(), delegate());
}

int64_t DescribedInteger::readMin()
{
    return limitOr(orNone(limits).min, rawInteger, [this] { return source().minInteger(); });
}

int64_t DescribedInteger::readMax()
{
    return limitOr(orNone(limits).max, rawInteger, [this] { return source().maxInteger(); });
}

std::optional<int64_t> DescribedInteger::readInc()
{
    if (!orNone(limits).inc.isStated())
        return source().incInteger();
    return limitOr(orNone(limits).inc, rawInteger, [] { return int64_t(1); });
}

std::vector<int64_t> DescribedInteger::validValues() const
{
    if (limits && !limits->validValues.empty())
        return limits->validValues;
    const auto *other = dynamic_cast<DescribedInteger *>(delegate());
    return other ? other->validValues() : std::vector<int64_t>();
}

// DescribedFloat

ERepresentation DescribedFloat::GetRepresentation()
{
    return representationOf(links(), delegate());
}

GenICam::gcstring DescribedFloat::GetUnit() const
{
    return unitOf(links(), delegate());
}

EDisplayNotation DescribedFloat::GetDisplayNotation() const
{
    if (const auto own = notationOf(stated(links(), "DisplayNotation")))
        return *own;
    const auto *real = dynamic_cast<IFloat *>(delegate());
    return real ? real->GetDisplayNotation() : fnAutomatic;
}

int64_t DescribedFloat::GetDisplayPrecision() const
{
    if (const auto own = stated(links(), "DisplayPrecision"))
        return integerFromText(std::string(*own)).value_or(0);
    const auto *real = dynamic_cast<IFloat *>(delegate());
    return real ? real->GetDisplayPrecision() : 6;
}

double DescribedFloat::readMin()
{
    return limitOr(orNone(limits).min, rawReal, [this] { return source().minReal(); });
}

double DescribedFloat::readMax()
{
    return limitOr(orNone(limits).max, rawReal, [this] { return source().maxReal(); });
}

std::optional<double> DescribedFloat::readInc()
{
    if (!orNone(limits).inc.isStated())
        return source().incReal();
    return limitOr(orNone(limits).inc, rawReal, [] { return 0.0; });
}

std::vector<double> DescribedFloat::validValues() const
{
    if (limits && !limits->validValues.empty())
        return limits->validValues;
    const auto *other = dynamic_cast<DescribedFloat *>(delegate());
    return other ? other->validValues() : std::vector<double>();
}

// DescribedCommand

int64_t DescribedCommand::valueToWrite()
{
    return limitOr(commandValue, rawInteger, [] { return int64_t(1); });
}

void DescribedCommand::execute()
{
    Question *question = Question::current(map());
    const std::size_t before = question ? question->writes.size() : 0;
    source().setInteger(valueToWrite());
    // The camera changes the register when it executes the command, so the written value is not
    // cached.
    for (std::size_t i = before; question && i < question->writes.size(); ++i)
        question->writes[i].isKept = false;
}

bool DescribedCommand::readIsDone()
{
    if (!IsReadable(source().accessMode()))
        return true;
    int64_t value = 0;
    int64_t written = 0;
    Gather gather;
    gather([&] { value = source().integer(); });
    gather([&] { written = valueToWrite(); });
    gather.finish();
    return value != written;
}

// DescribedString

EAccessMode DescribedString::ownAccessMode() const
{
    if (reference)
        return reference->GetAccessMode();
    if (links().reg)
        return links().reg->accessMode();
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
        return links().reg->length();
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
    return map().answer([this] { return reg().address(); });
}

GenICam::gcstring DescribedRegister::ToString(bool verify, bool ignoreCache)
{
    if (ignoreCache)
        map().refresh(*this);
    return map().answer([&]() -> GenICam::gcstring {
        requireReadable();
        if (reg().length() <= Limits::shownBytes)
            return RegisterNode::ToString(verify);
        return (hexText(reg().firstBytes(Limits::shownBytes)) + "\xe2\x80\xa6").c_str();
    });
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

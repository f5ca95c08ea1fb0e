// SPDX-License-Identifier: MIT
#include "numbersource.h"

#include "rawvalue.h"
#include "referenceguard.h"

#include <genapi/nodes/floatnode.h>
#include <genapi/nodes/integernode.h>

#include <algorithm>
#include <cfloat>
#include <cmath>

using namespace GenApi;
using namespace OrvGenApi;

namespace OrvDescription {

double NumberSource::minReal()
{
    return -DBL_MAX;
}

double NumberSource::maxReal()
{
    return DBL_MAX;
}

bool NumberSource::hasValue()
{
    try {
        real();
    } catch (const GenICam::RuntimeException &) {
        return false;
    } catch (const GenICam::GenericException &) {
    }
    return true;
}

// ReferenceSource

ReferenceSource::ReferenceSource(Node &node, std::vector<Node *> copies)
    : m_node(node), m_copies(std::move(copies))
{
}

EAccessMode ReferenceSource::accessMode()
{
    const ReferenceGuard guard;
    return m_node.GetAccessMode();
}

int64_t ReferenceSource::integer()
{
    return rawInteger(m_node);
}

double ReferenceSource::real()
{
    return rawReal(m_node);
}

void ReferenceSource::setInteger(int64_t value)
{
    Gather gather;
    gather([&] { setRawInteger(m_node, value); });
    for (Node *copy : m_copies)
        gather([&] { setRawInteger(*copy, value); });
    gather.finish();
}

void ReferenceSource::setReal(double value)
{
    Gather gather;
    gather([&] { setRawReal(m_node, value); });
    for (Node *copy : m_copies)
        gather([&] { setRawReal(*copy, value); });
    gather.finish();
}

int64_t ReferenceSource::minInteger()
{
    const ReferenceGuard guard;
    if (auto *integerNode = dynamic_cast<IntegerNode *>(&m_node))
        return integerNode->GetMin();
    if (auto *floatNode = dynamic_cast<FloatNode *>(&m_node))
        return toInteger(std::ceil(floatNode->GetMin()));
    return NumberSource::minInteger();
}

int64_t ReferenceSource::maxInteger()
{
    const ReferenceGuard guard;
    if (auto *integerNode = dynamic_cast<IntegerNode *>(&m_node))
        return integerNode->GetMax();
    if (auto *floatNode = dynamic_cast<FloatNode *>(&m_node))
        return toInteger(std::floor(floatNode->GetMax()));
    return NumberSource::maxInteger();
}

double ReferenceSource::minReal()
{
    const ReferenceGuard guard;
    if (auto *floatNode = dynamic_cast<FloatNode *>(&m_node))
        return floatNode->GetMin();
    if (auto *integerNode = dynamic_cast<IntegerNode *>(&m_node))
        return static_cast<double>(integerNode->GetMin());
    return NumberSource::minReal();
}

double ReferenceSource::maxReal()
{
    const ReferenceGuard guard;
    if (auto *floatNode = dynamic_cast<FloatNode *>(&m_node))
        return floatNode->GetMax();
    if (auto *integerNode = dynamic_cast<IntegerNode *>(&m_node))
        return static_cast<double>(integerNode->GetMax());
    return NumberSource::maxReal();
}

std::optional<int64_t> ReferenceSource::incInteger()
{
    const ReferenceGuard guard;
    auto *integerNode = dynamic_cast<IntegerNode *>(&m_node);
    if (!integerNode || integerNode->GetIncMode() != fixedIncrement)
        return std::nullopt;
    return integerNode->GetInc();
}

std::optional<double> ReferenceSource::incReal()
{
    const ReferenceGuard guard;
    if (auto *floatNode = dynamic_cast<FloatNode *>(&m_node)) {
        if (floatNode->GetIncMode() == fixedIncrement)
            return floatNode->GetInc();
        return std::nullopt;
    }
    if (const auto inc = incInteger())
        return static_cast<double>(*inc);
    return std::nullopt;
}

// IndexedSource

IndexedSource::IndexedSource(Node &index) : m_index(index) {}

void IndexedSource::add(int64_t index, std::unique_ptr<NumberSource> source)
{
    m_sources[index] = std::move(source);
}

void IndexedSource::setDefault(std::unique_ptr<NumberSource> source)
{
    m_default = std::move(source);
}

NumberSource &IndexedSource::current()
{
    const int64_t index = rawInteger(m_index);
    const auto found = m_sources.find(index);
    if (found != m_sources.end())
        return *found->second;
    if (m_default)
        return *m_default;
    throw GenICam::RuntimeException(("There is no value for the index " + std::to_string(index) +
                                     " of '" + m_index.name() + "'")
                                        .c_str(),
                                    __FILE__, __LINE__);
}

Node *IndexedSource::delegate() const
{
    return m_default ? m_default->delegate() : nullptr;
}

// FixedSource

FixedSource::FixedSource(double value, int64_t integer) : m_real(value), m_integer(integer) {}

void FixedSource::setInteger(int64_t value)
{
    m_integer = value;
    m_real = static_cast<double>(value);
}

void FixedSource::setReal(double value)
{
    m_real = value;
    m_integer = toInteger(value);
}

// RegisterSource

RegisterSource::RegisterSource(RegisterAccess &access, bool isReal)
    : m_access(access), m_isReal(isReal)
{
}

int64_t RegisterSource::integer()
{
    return m_isReal ? toInteger(m_access.real()) : m_access.integer();
}

double RegisterSource::real()
{
    return m_isReal ? m_access.real() : static_cast<double>(m_access.integer());
}

void RegisterSource::setInteger(int64_t value)
{
    if (m_isReal)
        m_access.setReal(static_cast<double>(value));
    else
        m_access.setInteger(value);
}

void RegisterSource::setReal(double value)
{
    if (m_isReal)
        m_access.setReal(value);
    else
        m_access.setInteger(toInteger(value));
}

int64_t RegisterSource::minInteger()
{
    return m_isReal ? NumberSource::minInteger() : m_access.minInteger();
}

int64_t RegisterSource::maxInteger()
{
    return m_isReal ? NumberSource::maxInteger() : m_access.maxInteger();
}

double RegisterSource::minReal()
{
    return m_isReal ? -m_access.maxReal() : static_cast<double>(m_access.minInteger());
}

double RegisterSource::maxReal()
{
    return m_isReal ? m_access.maxReal() : static_cast<double>(m_access.maxInteger());
}

// FormulaSource

FormulaSource::FormulaSource(std::unique_ptr<NodeFormula> formula, std::vector<Node *> variables,
                             bool isInteger)
    : m_formula(std::move(formula)), m_variables(std::move(variables)), m_isInteger(isInteger)
{
}

int64_t FormulaSource::integer()
{
    return m_isInteger ? m_formula->integer() : toInteger(m_formula->real());
}

double FormulaSource::real()
{
    return m_isInteger ? static_cast<double>(m_formula->integer()) : m_formula->real();
}

/// Reads a variable together with the data that access modes need.
void FormulaSource::lookAt(Node &variable)
{
    try {
        rawReal(variable);
    } catch (const GenICam::GenericException &) {
        // The result may not depend on it.
    }
}

EAccessMode FormulaSource::accessMode()
{
    const ReferenceGuard guard;
    bool areReadable = true;
    Gather gather;
    for (Node *variable : m_variables) {
        if (variable->GetPrincipalInterfaceType() == intfIEnumEntry)
            continue;
        gather([&] {
            areReadable = areReadable && IsReadable(variable->GetAccessMode());
            if (areReadable && m_formula->canFail())
                lookAt(*variable);
        });
    }
    if (!areReadable)
        return NA;
    gather.finish();
    if (!m_formula->canFail())
        return RO;
    return hasValue() ? RO : NA;
}

void FormulaSource::setInteger(int64_t)
{
    throw GenICam::AccessException("The result of a formula cannot be set", __FILE__, __LINE__);
}

void FormulaSource::setReal(double)
{
    setInteger(0);
}

// ConverterSource

ConverterSource::ConverterSource(Node &node, std::unique_ptr<NodeFormula> from,
                                 std::unique_ptr<NodeFormula> to, Slope slope, bool isLinear,
                                 bool isInteger)
    : m_node(node)
    , m_from(std::move(from))
    , m_to(std::move(to))
    , m_slope(slope)
    , m_isLinear(isLinear)
    , m_isInteger(isInteger)
{
}

EAccessMode ConverterSource::accessMode()
{
    const ReferenceGuard guard;
    const EAccessMode mode = m_node.GetAccessMode();
    if (!m_from->canFail() || !IsReadable(mode) || hasValue())
        return mode;
    return mode == RW ? WO : NA; // writing may make the value valid again
}

int64_t ConverterSource::integer()
{
    return m_isInteger ? m_from->integer([this] { return FormulaNumber(rawInteger(m_node)); })
                       : toInteger(real());
}

double ConverterSource::real()
{
    return m_isInteger ? static_cast<double>(integer())
                       : m_from->real([this] { return FormulaNumber(rawReal(m_node)); });
}

void ConverterSource::setInteger(int64_t value)
{
    if (!m_isInteger)
        return setReal(static_cast<double>(value));
    setRawInteger(m_node, m_to->integer([value] { return FormulaNumber(value); }));
}

void ConverterSource::setReal(double value)
{
    if (m_isInteger)
        return setInteger(toInteger(value));
    setRawReal(m_node, m_to->real([value] { return FormulaNumber(value); }));
}

std::optional<double> ConverterSource::converted(double rawValue)
{
    const auto raw = [&] {
        return m_isInteger ? FormulaNumber(toInteger(rawValue)) : FormulaNumber(rawValue);
    };
    try {
        double value = m_from->real(raw);
        // Integer arithmetic would overflow there; the limit is the floating-point result.
        if (m_isInteger && std::abs(value) < 9.2e18)
            value = static_cast<double>(m_from->integer(raw));
        return std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
    } catch (const GenICam::RuntimeException &) {
        return std::nullopt; // for instance a reciprocal at 0: no limit on that side
    }
}

std::pair<double, double> ConverterSource::limits()
{
    const std::pair<double, double> none(-DBL_MAX, DBL_MAX);
    if (m_slope == Slope::Varying)
        return none;
    ReferenceSource raw(m_node, {});
    std::optional<double> first;
    std::optional<double> last;
    Gather gather;
    gather([&] { first = converted(raw.minReal()); });
    gather([&] { last = converted(raw.maxReal()); });
    gather.finish();
    bool decreasing = m_slope == Slope::Decreasing;
    if (m_slope == Slope::Automatic)
        decreasing = first && last && *first > *last;
    const auto min = decreasing ? last : first;
    const auto max = decreasing ? first : last;
    return {min.value_or(none.first), max.value_or(none.second)};
}

int64_t ConverterSource::minInteger()
{
    return toInteger(std::ceil(limits().first));
}

int64_t ConverterSource::maxInteger()
{
    return toInteger(std::floor(limits().second));
}

std::optional<double> ConverterSource::incReal()
{
    if (!m_isLinear)
        return std::nullopt;
    ReferenceSource raw(m_node, {});
    std::optional<double> rawInc;
    std::optional<double> zero;
    Gather gather;
    gather([&] { rawInc = raw.incReal(); });
    gather([&] { zero = converted(0); });
    gather.finish();
    const auto step = rawInc ? converted(*rawInc) : std::nullopt;
    if (!zero || !step || *zero == *step)
        return std::nullopt;
    return std::abs(*step - *zero);
}

} // namespace OrvDescription

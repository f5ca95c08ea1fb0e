// SPDX-License-Identifier: MIT
#include "numbersource.h"

#include "errors.h"
#include "rawvalue.h"

#include <genapi/nodes/floatnode.h>
#include <genapi/nodes/integernode.h>

#include <arv.h>

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

// ConstantSource

ConstantSource::ConstantSource(ArvGcNode *engineNode, std::string name)
    : m_engineNode(engineNode), m_name(std::move(name))
{
}

int64_t ConstantSource::integer()
{
    GError *error = nullptr;
    int64_t value = 0;
    if (ARV_IS_GC_BOOLEAN(m_engineNode))
        value = arv_gc_boolean_get_value(ARV_GC_BOOLEAN(m_engineNode), &error);
    else if (ARV_IS_GC_ENUMERATION(m_engineNode))
        value = arv_gc_enumeration_get_int_value(ARV_GC_ENUMERATION(m_engineNode), &error);
    else if (ARV_IS_GC_INTEGER(m_engineNode))
        value = arv_gc_integer_get_value(ARV_GC_INTEGER(m_engineNode), &error);
    else
        return toInteger(real());
    throwIfFailed(error, m_name);
    return value;
}

double ConstantSource::real()
{
    if (!ARV_IS_GC_FLOAT(m_engineNode))
        return static_cast<double>(integer());
    GError *error = nullptr;
    const double value = arv_gc_float_get_value(ARV_GC_FLOAT(m_engineNode), &error);
    throwIfFailed(error, m_name);
    return value;
}

void ConstantSource::setInteger(int64_t value)
{
    GError *error = nullptr;
    if (ARV_IS_GC_BOOLEAN(m_engineNode))
        arv_gc_boolean_set_value(ARV_GC_BOOLEAN(m_engineNode), value != 0, &error);
    else if (ARV_IS_GC_ENUMERATION(m_engineNode))
        arv_gc_enumeration_set_int_value(ARV_GC_ENUMERATION(m_engineNode), value, &error);
    else if (ARV_IS_GC_INTEGER(m_engineNode))
        arv_gc_integer_set_value(ARV_GC_INTEGER(m_engineNode), value, &error);
    else
        return setReal(static_cast<double>(value));
    throwIfFailed(error, m_name);
}

void ConstantSource::setReal(double value)
{
    if (!ARV_IS_GC_FLOAT(m_engineNode))
        return setInteger(toInteger(value));
    GError *error = nullptr;
    arv_gc_float_set_value(ARV_GC_FLOAT(m_engineNode), value, &error);
    throwIfFailed(error, m_name);
}

// ReferenceSource

ReferenceSource::ReferenceSource(Node &node, std::vector<Node *> copies)
    : m_node(node), m_copies(std::move(copies))
{
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
    setRawInteger(m_node, value);
    for (Node *copy : m_copies)
        setRawInteger(*copy, value);
}

void ReferenceSource::setReal(double value)
{
    setRawReal(m_node, value);
    for (Node *copy : m_copies)
        setRawReal(*copy, value);
}

int64_t ReferenceSource::minInteger()
{
    if (auto *integerNode = dynamic_cast<IntegerNode *>(&m_node))
        return integerNode->GetMin();
    if (auto *floatNode = dynamic_cast<FloatNode *>(&m_node))
        return toInteger(std::ceil(floatNode->GetMin()));
    return NumberSource::minInteger();
}

int64_t ReferenceSource::maxInteger()
{
    if (auto *integerNode = dynamic_cast<IntegerNode *>(&m_node))
        return integerNode->GetMax();
    if (auto *floatNode = dynamic_cast<FloatNode *>(&m_node))
        return toInteger(std::floor(floatNode->GetMax()));
    return NumberSource::maxInteger();
}

double ReferenceSource::minReal()
{
    if (auto *floatNode = dynamic_cast<FloatNode *>(&m_node))
        return floatNode->GetMin();
    if (auto *integerNode = dynamic_cast<IntegerNode *>(&m_node))
        return static_cast<double>(integerNode->GetMin());
    return NumberSource::minReal();
}

double ReferenceSource::maxReal()
{
    if (auto *floatNode = dynamic_cast<FloatNode *>(&m_node))
        return floatNode->GetMax();
    if (auto *integerNode = dynamic_cast<IntegerNode *>(&m_node))
        return static_cast<double>(integerNode->GetMax());
    return NumberSource::maxReal();
}

std::optional<int64_t> ReferenceSource::incInteger()
{
    auto *integerNode = dynamic_cast<IntegerNode *>(&m_node);
    if (!integerNode || integerNode->GetIncMode() != fixedIncrement)
        return std::nullopt;
    return integerNode->GetInc();
}

std::optional<double> ReferenceSource::incReal()
{
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

RegisterSource::RegisterSource(RegisterAccess &access, EAccessMode mode, bool isReal)
    : m_access(access), m_mode(mode), m_isReal(isReal)
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
    return m_isReal ? m_access.minReal() : static_cast<double>(m_access.minInteger());
}

double RegisterSource::maxReal()
{
    return m_isReal ? m_access.maxReal() : static_cast<double>(m_access.maxInteger());
}

// FormulaSource

FormulaSource::FormulaSource(std::unique_ptr<Formula> formula, std::vector<Node *> variables,
                             bool canFail, bool isInteger)
    : m_formula(std::move(formula))
    , m_variables(std::move(variables))
    , m_canFail(canFail)
    , m_isInteger(isInteger)
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

EAccessMode FormulaSource::accessMode()
{
    for (Node *variable : m_variables) {
        if (variable->GetPrincipalInterfaceType() != intfIEnumEntry &&
            !IsReadable(variable->GetAccessMode()))
            return NA;
    }
    if (!m_canFail)
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

ConverterSource::ConverterSource(Node &node, std::unique_ptr<Formula> from,
                                 std::unique_ptr<Formula> to, Slope slope, bool isLinear,
                                 bool isInteger, bool canFail)
    : m_node(node)
    , m_from(std::move(from))
    , m_to(std::move(to))
    , m_slope(slope)
    , m_isLinear(isLinear)
    , m_isInteger(isInteger)
    , m_canFail(canFail)
{
}

EAccessMode ConverterSource::accessMode()
{
    const EAccessMode mode = m_node.GetAccessMode();
    if (!m_canFail || !IsReadable(mode) || hasValue())
        return mode;
    return mode == RW ? WO : NA; // writing may give it a value again
}

int64_t ConverterSource::integer()
{
    return m_isInteger ? m_from->integer("TO", rawInteger(m_node)) : toInteger(real());
}

double ConverterSource::real()
{
    return m_isInteger ? static_cast<double>(integer()) : m_from->real("TO", rawReal(m_node));
}

void ConverterSource::setInteger(int64_t value)
{
    if (m_isInteger)
        setRawInteger(m_node, m_to->integer("FROM", value));
    else
        setReal(static_cast<double>(value));
}

void ConverterSource::setReal(double value)
{
    if (m_isInteger)
        setInteger(toInteger(value));
    else
        setRawReal(m_node, m_to->real("FROM", value));
}

std::optional<double> ConverterSource::converted(double rawValue)
{
    try {
        const double value = m_isInteger
                                 ? static_cast<double>(m_from->integer("TO", toInteger(rawValue)))
                                 : m_from->real("TO", rawValue);
        return std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
    } catch (const GenICam::RuntimeException &) {
        return std::nullopt; // such as a reciprocal at 0: no limit on that side
    }
}

std::pair<double, double> ConverterSource::limits()
{
    const std::pair<double, double> none(-DBL_MAX, DBL_MAX);
    if (m_slope == Slope::Varying)
        return none;
    ReferenceSource raw(m_node, {});
    const auto first = converted(raw.minReal());
    const auto last = converted(raw.maxReal());
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
    const auto rawInc = raw.incReal();
    const auto zero = converted(0);
    const auto step = rawInc ? converted(*rawInc) : std::nullopt;
    if (!zero || !step || *zero == *step)
        return std::nullopt;
    return std::abs(*step - *zero);
}

} // namespace OrvDescription

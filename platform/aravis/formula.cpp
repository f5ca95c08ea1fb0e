// SPDX-License-Identifier: MIT
#include "formula.h"

#include "description.h"
#include "errors.h"
#include "rawvalue.h"

#include <genapi/nodes/enumerationnode.h>
#include <genapi/nodes/floatnode.h>
#include <genapi/nodes/integernode.h>

#include <arv.h>

#include <algorithm>
#include <cctype>

using namespace OrvGenApi;

namespace OrvAravis {

namespace {

/// The number of a node that the part of a variable's name behind the point asks for, as an
/// integer or a floating-point number.
struct Number
{
    bool isReal;
    int64_t integer;
    double real;

    Number(int64_t value) : isReal(false), integer(value), real(static_cast<double>(value)) {}
    Number(double value) : isReal(true), integer(0), real(value) {}
};

ArvEvaluator *newEvaluator(const DescriptionNode &node, const std::string &text)
{
    ArvEvaluator *evaluator = arv_evaluator_new(text.c_str());
    for (const DescriptionProperty &property : node.properties) {
        if (property.tag == "Constant")
            arv_evaluator_set_constant(evaluator, property.name.c_str(), property.text.c_str());
        else if (property.tag == "Expression")
            arv_evaluator_set_sub_expression(evaluator, property.name.c_str(),
                                             property.text.c_str());
    }
    return evaluator;
}

bool callsFunction(const std::string &text)
{
    for (auto open = text.find('('); open != std::string::npos; open = text.find('(', open + 1)) {
        if (open > 0 && std::isupper(static_cast<unsigned char>(text[open - 1])))
            return true;
    }
    return false;
}

bool divides(const DescriptionNode &node, const std::string &text)
{
    const auto hasDivision = [](const std::string &formula) {
        return formula.find_first_of("/%") != std::string::npos;
    };
    return hasDivision(text) ||
           std::any_of(node.properties.begin(), node.properties.end(),
                       [&](const DescriptionProperty &property) {
                           return property.tag == "Expression" && hasDivision(property.text);
                       });
}

Number valueOf(Node &node)
{
    if (isReal(node))
        return rawReal(node);
    return rawInteger(node);
}

Number entryValue(Node &node, const std::string &symbolic)
{
    auto *enumeration = dynamic_cast<EnumerationNode *>(&node);
    GenApi::IEnumEntry *entry =
        enumeration ? enumeration->GetEntryByName(symbolic.c_str()) : nullptr;
    if (!entry)
        throw GenICam::RuntimeException(
            ("'" + node.name() + "' has no entry '" + symbolic + "'").c_str(), __FILE__, __LINE__);
    return entry->GetValue();
}

template<typename NumberNode>
Number limitOf(NumberNode &node, const std::string &which)
{
    if (which == "Min")
        return node.GetMin();
    if (which == "Max")
        return node.GetMax();
    return node.GetInc();
}

Number numberOf(Node &node, const std::string &which)
{
    if (which.empty() || which == "Value")
        return valueOf(node);
    for (const std::string prefix : {"Enum.", "Entry."}) {
        if (which.compare(0, prefix.size(), prefix) == 0)
            return entryValue(node, which.substr(prefix.size()));
    }
    if (which == "Min" || which == "Max" || which == "Inc") {
        if (auto *integer = dynamic_cast<IntegerNode *>(&node))
            return limitOf(*integer, which);
        if (auto *real = dynamic_cast<FloatNode *>(&node))
            return limitOf(*real, which);
    }
    throw GenICam::RuntimeException(("'" + node.name() + "' has no number '" + which + "'").c_str(),
                                    __FILE__, __LINE__);
}

} // namespace

Formula::Formula(const DescriptionNode &node, const std::string &text)
    : m_owner(node.name)
    , m_usesFunctions(callsFunction(text))
    , m_divides(divides(node, text))
    , m_evaluator(newEvaluator(node, text))
{
    for (const DescriptionProperty &property : node.properties)
        m_usesFunctions =
            m_usesFunctions || (property.tag == "Expression" && callsFunction(property.text));
}

bool Formula::isWellFormed(const DescriptionNode &node, const std::string &text,
                           const std::vector<std::string> &variables)
{
    if (divides(node, text))
        return true;
    ArvEvaluator *evaluator = newEvaluator(node, text);
    for (const std::string &variable : variables)
        arv_evaluator_set_int64_variable(evaluator, variable.c_str(), 1);
    GError *error = nullptr;
    arv_evaluator_evaluate_as_double(evaluator, &error);
    g_object_unref(evaluator);
    const bool wellFormed = !error;
    g_clear_error(&error);
    return wellFormed;
}

Formula::~Formula()
{
    g_object_unref(m_evaluator);
}

void Formula::addVariable(const std::string &name, Node &node)
{
    m_variables.emplace_back(name, &node);
}

void Formula::setInteger(const std::string &name, int64_t value)
{
    // The smallest integer divided by -1 does not fit into an integer: the processor would end the
    // program. It is the lower limit of everything that states none.
    if (m_divides && value == INT64_MIN)
        ++value;
    arv_evaluator_set_int64_variable(m_evaluator, name.c_str(), value);
}

void Formula::setVariable(const std::string &name, Node &node)
{
    const auto point = name.find('.');
    const Number number =
        numberOf(node, point == std::string::npos ? std::string() : name.substr(point + 1));
    if (number.isReal)
        arv_evaluator_set_double_variable(m_evaluator, name.c_str(), number.real);
    else
        setInteger(name, number.integer);
}

void Formula::setVariables()
{
    for (const auto &[name, node] : m_variables)
        setVariable(name, *node);
}

int64_t Formula::integer(const std::string &inputName, int64_t input)
{
    setVariables();
    if (!inputName.empty())
        setInteger(inputName, input);
    GError *error = nullptr;
    if (m_usesFunctions) {
        const double value = arv_evaluator_evaluate_as_double(m_evaluator, &error);
        throwIfFailed(error, m_owner);
        return toInteger(value);
    }
    const int64_t value = arv_evaluator_evaluate_as_int64(m_evaluator, &error);
    throwIfFailed(error, m_owner);
    return value;
}

double Formula::real(const std::string &inputName, double input)
{
    setVariables();
    if (!inputName.empty())
        arv_evaluator_set_double_variable(m_evaluator, inputName.c_str(), input);
    GError *error = nullptr;
    const double value = arv_evaluator_evaluate_as_double(m_evaluator, &error);
    throwIfFailed(error, m_owner);
    return value;
}

} // namespace OrvAravis

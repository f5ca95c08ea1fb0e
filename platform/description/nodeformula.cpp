// SPDX-License-Identifier: MIT
#include "nodeformula.h"

#include "description.h"
#include "formulanames.h"
#include "rawvalue.h"
#include "referenceguard.h"

#include <genapi/nodes/enumerationnode.h>
#include <genapi/nodes/floatnode.h>
#include <genapi/nodes/integernode.h>

using namespace OrvGenApi;

namespace OrvDescription {

namespace {

/// The index of the input among the variables.
constexpr uint32_t inputVariable = 0;

FormulaNames namesOf(const std::vector<DescriptionProperty> &properties, std::string_view inputName)
{
    FormulaNames names;
    names.addVariable(inputName);
    for (const DescriptionProperty &property : properties) {
        if (property.tag == "pVariable")
            names.addVariable(property.name());
        else if (property.tag == "Constant")
            names.addConstant(property.name(), property.text);
        else if (property.tag == "Expression")
            names.addExpression(property.name(), property.text);
    }
    return names;
}

[[noreturn]] void fail(const std::string &text)
{
    throw GenICam::RuntimeException(text.c_str(), __FILE__, __LINE__);
}

bool isLimit(std::string_view part)
{
    return part == "Min" || part == "Max" || part == "Inc";
}

int64_t entryValue(Node &node, std::string_view symbolic)
{
    auto *enumeration = dynamic_cast<EnumerationNode *>(&node);
    const std::string wanted(symbolic);
    GenApi::IEnumEntry *entry = enumeration ? enumeration->GetEntryByName(wanted.c_str()) : nullptr;
    if (!entry)
        fail("'" + node.name() + "' has no entry '" + wanted + "'");
    return entry->GetValue();
}

template<typename NumberNode>
FormulaNumber limitOf(NumberNode &node, std::string_view which)
{
    const ReferenceGuard guard;
    if (which == "Min")
        return node.GetMin();
    if (which == "Max")
        return node.GetMax();
    return node.GetInc();
}

FormulaNumber numberOf(Node &node, std::string_view part)
{
    if (part.empty())
        return isReal(node) ? FormulaNumber(rawReal(node)) : FormulaNumber(rawInteger(node));
    for (const std::string_view prefix : {"Enum.", "Entry."}) {
        if (part.substr(0, prefix.size()) == prefix)
            return entryValue(node, part.substr(prefix.size()));
    }
    if (isLimit(part)) {
        if (auto *integer = dynamic_cast<IntegerNode *>(&node))
            return limitOf(*integer, part);
        if (auto *real = dynamic_cast<FloatNode *>(&node))
            return limitOf(*real, part);
    }
    fail("'" + node.name() + "' has no number '" + std::string(part) + "'");
}

} // namespace

NodeFormula::NodeFormula(std::string_view text, const std::vector<DescriptionProperty> &properties,
                         std::vector<Node *> variables, std::string_view owner,
                         std::string_view inputName)
    : m_variables(std::move(variables)), m_formula(text, namesOf(properties, inputName), owner)
{
}

std::vector<std::pair<Node *, std::string_view>> NodeFormula::limitsRead() const
{
    std::vector<std::pair<Node *, std::string_view>> limits;
    for (const FormulaCode::Use &use : m_formula.uses()) {
        if (use.variable != inputVariable && isLimit(use.part) && m_variables[use.variable - 1])
            limits.emplace_back(m_variables[use.variable - 1], use.part);
    }
    return limits;
}

FormulaNumber NodeFormula::look(const FormulaCode::Use &use, const Input &input) const
{
    if (use.variable == inputVariable)
        return input ? input() : FormulaNumber(int64_t(0));
    Node *node = m_variables[use.variable - 1];
    if (!node)
        fail("A variable of a formula leads nowhere");
    return numberOf(*node, use.part);
}

int64_t NodeFormula::integer(const Input &input) const
{
    return m_formula.integer([&](const FormulaCode::Use &use) { return look(use, input); });
}

double NodeFormula::real(const Input &input) const
{
    return m_formula.real([&](const FormulaCode::Use &use) { return look(use, input); });
}

} // namespace OrvDescription

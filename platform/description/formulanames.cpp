// SPDX-License-Identifier: MIT
#include "formulanames.h"

namespace OrvDescription {

void FormulaNames::addVariable(std::string_view name)
{
    m_meanings.try_emplace(name, Meaning{Kind::Variable, m_variables++, {}});
}

void FormulaNames::addConstant(std::string_view name, std::string_view text)
{
    m_meanings.try_emplace(name, Meaning{Kind::Constant, 0, text});
}

void FormulaNames::addExpression(std::string_view name, std::string_view text)
{
    m_meanings.try_emplace(name, Meaning{Kind::Expression, 0, text});
}

const FormulaNames::Meaning *FormulaNames::find(std::string_view name) const
{
    const auto found = m_meanings.find(name);
    return found == m_meanings.end() ? nullptr : &found->second;
}

} // namespace OrvDescription

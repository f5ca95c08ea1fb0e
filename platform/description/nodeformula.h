// SPDX-License-Identifier: MIT
#pragma once

#include "formula.h"

#include <genapi/nodes/node.h>

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace OrvDescription {

struct DescriptionProperty;

/// A formula whose variables are nodes. One more may be a number that is given with the question.
class NodeFormula
{
public:
    using Input = std::function<FormulaNumber()>;

    /// `properties` declare the names that the text may use, `variables` are the nodes of the
    /// variables among them, in their order, null where there is none. `owner` must live as long as
    /// the formula.
    NodeFormula(std::string_view text, const std::vector<DescriptionProperty> &properties,
                std::vector<OrvGenApi::Node *> variables, std::string_view owner,
                std::string_view inputName = {});

    /// False when the formula makes no sense.
    bool isUsable() const { return m_formula.error().empty(); }
    bool canFail() const { return m_formula.canFail(); }

    /// The nodes of which the formula takes a limit or an increment, and which: "Min", "Max",
    /// "Inc".
    std::vector<std::pair<OrvGenApi::Node *, std::string_view>> limitsRead() const;

    /// Throws what `Formula` and the nodes throw.
    int64_t integer(const Input &input = {}) const;
    double real(const Input &input = {}) const;

private:
    FormulaNumber look(const FormulaCode::Use &use, const Input &input) const;

    std::vector<OrvGenApi::Node *> m_variables;
    Formula m_formula;
};

} // namespace OrvDescription

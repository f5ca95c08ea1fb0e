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

/// A formula whose variables are nodes. One more variable may be a number that the caller passes.
class NodeFormula
{
public:
    using Input = std::function<FormulaNumber()>;

    /// `properties` declare the names in the text. `variables` are the nodes of the declared
    /// variables, in their order, null for a missing node. `owner` must live as long as the
    /// formula.
    NodeFormula(std::string_view text, const std::vector<DescriptionProperty> &properties,
                std::vector<OrvGenApi::Node *> variables, std::string_view owner,
                std::string_view inputName = {});

    /// False for an invalid formula.
    bool isUsable() const { return m_formula.error().empty(); }
    bool canFail() const { return m_formula.canFail(); }

    /// The nodes of which the formula uses a limit or an increment, with "Min", "Max" or "Inc".
    std::vector<std::pair<OrvGenApi::Node *, std::string_view>> limitsRead() const;

    /// Throws the exceptions of `Formula` and of the nodes.
    int64_t integer(const Input &input = {}) const;
    double real(const Input &input = {}) const;

private:
    FormulaNumber look(const FormulaCode::Use &use, const Input &input) const;

    std::vector<OrvGenApi::Node *> m_variables;
    Formula m_formula;
};

} // namespace OrvDescription

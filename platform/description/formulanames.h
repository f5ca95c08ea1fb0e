// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Types.h>

#include <string_view>
#include <unordered_map>
#include <vector>

namespace OrvDescription {

/// What identifiers stand for in the formulas of one node. The texts must live as long as what is
/// made of them.
class FormulaNames
{
public:
    enum class Kind { Variable, Constant, Expression };

    struct Meaning
    {
        Kind kind;
        std::size_t variable; ///< its number, in the order of declaration
        std::string_view text;
    };

    void addVariable(std::string_view name);
    void addConstant(std::string_view name, std::string_view text);
    void addExpression(std::string_view name, std::string_view text);

    /// Null when there is none.
    const Meaning *find(std::string_view name) const;

private:
    std::unordered_map<std::string_view, Meaning> m_meanings; ///< the first declaration counts
    std::size_t m_variables = 0;
};

} // namespace OrvDescription

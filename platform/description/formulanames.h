// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Types.h>

#include <string_view>
#include <unordered_map>
#include <vector>

namespace OrvDescription {

/// The meanings of the identifiers in the formulas of one node. The texts must live as long as the
/// formulas.
class FormulaNames
{
public:
    enum class Kind { Variable, Constant, Expression };

    struct Meaning
    {
        Kind kind;
        std::size_t variable; ///< index in the order of declaration
        std::string_view text;
    };

    void addVariable(std::string_view name);
    void addConstant(std::string_view name, std::string_view text);
    void addExpression(std::string_view name, std::string_view text);

    /// Null when there is none.
    const Meaning *find(std::string_view name) const;

private:
    /// The first declaration of a name is used.
    std::unordered_map<std::string_view, Meaning> m_meanings;
    std::size_t m_variables = 0;
};

} // namespace OrvDescription

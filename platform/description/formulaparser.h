// SPDX-License-Identifier: MIT
#pragma once

#include "formulacode.h"
#include "formulanames.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace OrvDescription {

/// Parses one formula.
class FormulaParser
{
public:
    /// An error in a formula.
    struct Error
    {
        std::string text;
    };

    explicit FormulaParser(const FormulaNames &names) : m_names(names) {}

    /// Throws `Error`.
    FormulaCode parse(std::string_view text);

private:
    using Op = FormulaCode::Op;
    enum class Sign { Minus, Plus, Complement };

    void parseWhole(std::string_view text);
    void parseChoices();
    void parseBinary(int lowestLevel);
    void parseOperand();
    void parseNumber();
    void parseIdentifier();
    void parseVariable(std::size_t variable, std::string_view part);
    void parseConstant(std::string_view text);
    void parseExpression(std::string_view text);
    bool parseFunction(std::string_view name);
    bool parseFixedNumber(std::string_view name);

    void skipBlanks();
    bool take(std::string_view token);
    void require(std::string_view token);
    [[noreturn]] void fail(const std::string &why) const;

    std::size_t emit(Op op, int change, std::size_t operand = 0);
    void emitNumber(FormulaNumber number);
    void emitDivision(Op op, std::size_t divisor);
    void setJumpTarget(std::size_t step);

    /// Counts the nesting depth of the parser.
    class Nesting;

    const FormulaNames &m_names;
    FormulaCode m_code;
    std::map<std::pair<std::size_t, std::string_view>, std::size_t> m_uses; ///< with their indexes
    std::string_view m_text;
    std::size_t m_position = 0;
    std::size_t m_totalSize = 0;
    int m_depth = 0;
    int m_height = 0;
};

} // namespace OrvDescription

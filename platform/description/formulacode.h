// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace OrvDescription {

/// A number in a formula.
struct FormulaNumber
{
    enum class Kind : uint8_t { Integer, Real, Unknown };

    Kind kind = Kind::Unknown;
    union {
        int64_t integer = 0;
        double real;
    };

    FormulaNumber() = default;
    FormulaNumber(int64_t value) : kind(Kind::Integer), integer(value) {}
    FormulaNumber(double value) : kind(Kind::Real), real(value) {}

    bool isKnown() const { return kind != Kind::Unknown; }
    bool isReal() const { return kind == Kind::Real; }

    /// Truncates toward 0; returns the nearest limit for a number out of range, and 0 for NaN.
    int64_t toInteger() const;
    double toReal() const { return isReal() ? real : static_cast<double>(integer); }
    bool isTrue() const { return isReal() ? real != 0 : integer != 0; }
};

/// A parsed formula: operations on a stack of numbers, in the order of execution.
struct FormulaCode
{
    enum class Op : uint8_t {
        Number,   ///< pushes one of `numbers`
        Variable, ///< pushes the number for one of `uses`
        // Unary operations
        Negate,
        Complement,
        Truth, ///< 1 or 0
        Sin,
        Cos,
        Tan,
        Asin,
        Acos,
        Atan,
        Exp,
        Ln,
        Lg,
        Sqrt,
        Abs,
        Sgn,
        Trunc,
        Floor,
        Ceil,
        Round,
        // Binary operations
        RoundTo,
        Power,
        Multiply,
        Divide,
        Remainder,
        Add,
        Subtract,
        ShiftLeft,
        ShiftRight,
        Less,
        Greater,
        LessOrEqual,
        GreaterOrEqual,
        Equal,
        NotEqual,
        BitAnd,
        BitXor,
        BitOr,
        // Jumps
        And,    ///< jumps unless the topmost number is true; otherwise pops it
        Or,     ///< jumps unless it is false; otherwise pops it
        Choose, ///< unless it is true; in front of that place a `Jump` leads to the end of the
                ///< choice
        Jump
    };

    struct Step
    {
        Op op;
        uint32_t operand;
    };

    /// A number of a variable: the index of the variable, and the property, such as "Max"; empty
    /// for the value.
    struct Use
    {
        uint32_t variable;
        std::string_view part;
    };

    std::vector<Step> steps;
    std::vector<FormulaNumber> numbers;
    std::vector<Use> uses;
    std::size_t stackSize = 0;
    bool callsFunctions = false;

    /// There is a division whose divisor may be 0.
    bool canFail = false;
};

} // namespace OrvDescription

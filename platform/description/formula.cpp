// SPDX-License-Identifier: MIT
#include "formula.h"

#include "formulaparser.h"
#include "rawvalue.h"

#include <Base/GCException.h>

#include <genapi/nodes/question.h>

#include <array>
#include <cmath>
#include <optional>

using Op = OrvDescription::FormulaCode::Op;

namespace OrvDescription {

namespace {

// Results are truncated to 64 bits, as in the processor of a camera.

int64_t wrapped(uint64_t bits)
{
    return static_cast<int64_t>(bits);
}

uint64_t bitsOf(int64_t value)
{
    return static_cast<uint64_t>(value);
}

int64_t quotient(int64_t dividend, int64_t divisor)
{
    return divisor == -1 ? wrapped(0 - bitsOf(dividend)) : dividend / divisor;
}

int64_t remainder(int64_t dividend, int64_t divisor)
{
    return divisor == -1 ? 0 : dividend % divisor;
}

// The count of a shift is modulo 64, as in processors.

int64_t shiftedLeft(int64_t value, int64_t count)
{
    return wrapped(bitsOf(value) << (count & 63));
}

int64_t shiftedRight(int64_t value, int64_t count)
{
    return value >> (count & 63);
}

int64_t integerPower(int64_t base, int64_t exponent)
{
    if (exponent < 0)
        return base == 1 || base == -1 ? (exponent % 2 == 0 ? 1 : base) : 0;
    uint64_t result = 1;
    for (uint64_t factor = bitsOf(base); exponent > 0; exponent /= 2, factor *= factor) {
        if (exponent % 2 != 0)
            result *= factor;
    }
    return wrapped(result);
}

double rounded(double value, int64_t digits)
{
    const double scale = std::pow(10.0, static_cast<double>(digits));
    const double result = std::round(value * scale) / scale;
    return std::isfinite(result) ? result : value;
}

/// The result is an integer if both operands are, unless it overflows.
FormulaNumber sum(FormulaNumber left, FormulaNumber right)
{
    int64_t result = 0;
    if (left.isReal() || right.isReal() ||
        __builtin_add_overflow(left.integer, right.integer, &result))
        return left.toReal() + right.toReal();
    return result;
}

FormulaNumber difference(FormulaNumber left, FormulaNumber right)
{
    int64_t result = 0;
    if (left.isReal() || right.isReal() ||
        __builtin_sub_overflow(left.integer, right.integer, &result))
        return left.toReal() - right.toReal();
    return result;
}

FormulaNumber product(FormulaNumber left, FormulaNumber right)
{
    int64_t result = 0;
    if (left.isReal() || right.isReal() ||
        __builtin_mul_overflow(left.integer, right.integer, &result))
        return left.toReal() * right.toReal();
    return result;
}

bool isLess(FormulaNumber left, FormulaNumber right)
{
    if (left.isReal() || right.isReal())
        return left.toReal() < right.toReal();
    return left.integer < right.integer;
}

bool isEqual(FormulaNumber left, FormulaNumber right)
{
    if (left.isReal() || right.isReal())
        return left.toReal() == right.toReal();
    return left.integer == right.integer;
}

FormulaNumber truth(bool value)
{
    return int64_t(value ? 1 : 0);
}

} // namespace

int64_t FormulaNumber::toInteger() const
{
    if (!isReal())
        return integer;
    if (std::isnan(real))
        return 0;
    if (real >= 9223372036854775808.0)
        return INT64_MAX;
    if (real < -9223372036854775808.0)
        return INT64_MIN;
    return static_cast<int64_t>(real);
}

/// An evaluation of a formula.
class Formula::Evaluation
{
public:
    Evaluation(const Formula &formula, const Look &look, bool isInteger)
        : m_formula(formula), m_look(look), m_isInteger(isInteger)
    {
    }

    FormulaNumber run()
    {
        if (!m_formula.m_error.empty())
            fail(m_formula.m_error);
        const FormulaCode &code = m_formula.m_code;
        if (code.stackSize >= m_fewNumbers.size()) {
            m_manyNumbers.resize(code.stackSize + 1);
            m_top = m_manyNumbers.data();
        }
        for (std::size_t i = 0; i < code.steps.size();)
            i = run(i, code.steps[i]);
        if (!m_top->isKnown()) {
            lookAtRest();
            throw OrvGenApi::NotYetKnown();
        }
        return *m_top;
    }

private:
    /// Executes a step and returns the number of the next one.
    std::size_t run(std::size_t number, FormulaCode::Step step)
    {
        switch (step.op) {
        case Op::Number:
            push(m_formula.m_code.numbers[step.operand]);
            break;
        case Op::Variable:
            push(variable(step.operand));
            break;
        case Op::And:
        case Op::Or:
            if (m_top->isKnown() && m_top->isTrue() == (step.op == Op::And)) {
                --m_top;
                break;
            }
            if (m_top->isKnown())
                *m_top = truth(m_top->isTrue());
            return step.operand;
        case Op::Choose:
            return choose(number, step);
        case Op::Jump:
            return step.operand;
        default:
            if (step.op >= Op::RoundTo)
                computeOfTwo(step.op);
            else if (m_top->isKnown())
                *m_top = resultOfOne(step.op, *m_top);
        }
        return number + 1;
    }

    std::size_t choose(std::size_t number, FormulaCode::Step step)
    {
        // Neither side is evaluated before the condition is known.
        if (!m_top->isKnown())
            return m_formula.m_code.steps[step.operand - 1].operand;
        const bool isTrue = m_top->isTrue();
        --m_top;
        return isTrue ? number + 1 : step.operand;
    }

    /// Makes one round of transfers fetch all registers that may be needed, instead of one per
    /// condition.
    void lookAtRest()
    {
        for (std::size_t use = 0; use < m_variables.size(); ++use) {
            try {
                variable(use);
            } catch (const GenICam::GenericException &) {
                // The side may not be needed.
            }
        }
    }

    void push(FormulaNumber number)
    {
        *++m_top = m_isInteger && number.isReal() ? FormulaNumber(number.toInteger()) : number;
    }

    FormulaNumber variable(std::size_t use)
    {
        if (m_variables.empty())
            m_variables.resize(m_formula.m_code.uses.size());
        std::optional<FormulaNumber> &value = m_variables[use];
        if (!value) {
            try {
                value = m_look(m_formula.m_code.uses[use]);
            } catch (const OrvGenApi::NotYetKnown &) {
                value = FormulaNumber();
            }
        }
        return *value;
    }

    FormulaNumber resultOfOne(Op op, FormulaNumber x) const
    {
        switch (op) {
        case Op::Negate:
            return difference(int64_t(0), x, m_isInteger);
        case Op::Complement:
            return ~x.toInteger();
        case Op::Truth:
            return truth(x.isTrue());
        case Op::Sin:
            return std::sin(x.toReal());
        case Op::Cos:
            return std::cos(x.toReal());
        case Op::Tan:
            return std::tan(x.toReal());
        case Op::Asin:
            return std::asin(x.toReal());
        case Op::Acos:
            return std::acos(x.toReal());
        case Op::Atan:
            return std::atan(x.toReal());
        case Op::Exp:
            return std::exp(x.toReal());
        case Op::Ln:
            return std::log(x.toReal());
        case Op::Lg:
            return std::log10(x.toReal());
        case Op::Sqrt:
            return std::sqrt(x.toReal());
        case Op::Abs:
            return isLess(x, int64_t(0)) ? resultOfOne(Op::Negate, x) : x;
        case Op::Sgn:
            return int64_t(isLess(int64_t(0), x)) - int64_t(isLess(x, int64_t(0)));
        case Op::Trunc:
            return x.isReal() ? FormulaNumber(std::trunc(x.real)) : x;
        case Op::Floor:
            return x.isReal() ? FormulaNumber(std::floor(x.real)) : x;
        case Op::Ceil:
            return x.isReal() ? FormulaNumber(std::ceil(x.real)) : x;
        default:
            return x.isReal() ? FormulaNumber(std::round(x.real)) : x;
        }
    }

    void computeOfTwo(Op op)
    {
        const FormulaNumber right = *m_top--;
        if (!m_top->isKnown() || !right.isKnown())
            *m_top = FormulaNumber();
        else
            *m_top = resultOfTwo(op, *m_top, right);
    }

    FormulaNumber resultOfTwo(Op op, FormulaNumber left, FormulaNumber right) const
    {
        switch (op) {
        case Op::RoundTo:
            return rounded(left.toReal(), right.toInteger());
        case Op::Power:
            return power(left, right);
        case Op::Multiply:
            return m_isInteger ? wrapped(bitsOf(left.integer) * bitsOf(right.integer))
                               : product(left, right);
        case Op::Divide:
            if (m_isInteger)
                return quotient(left.integer, divisor(right.integer));
            return left.toReal() / divisor(right.toReal());
        case Op::Remainder:
            return remainder(left.toInteger(), divisor(right.toInteger()));
        case Op::Add:
            return m_isInteger ? wrapped(bitsOf(left.integer) + bitsOf(right.integer))
                               : sum(left, right);
        case Op::Subtract:
            return difference(left, right, m_isInteger);
        case Op::ShiftLeft:
            return shiftedLeft(left.toInteger(), right.toInteger());
        case Op::ShiftRight:
            return shiftedRight(left.toInteger(), right.toInteger());
        case Op::Less:
            return truth(isLess(left, right));
        case Op::Greater:
            return truth(isLess(right, left));
        case Op::LessOrEqual:
            return truth(isLess(left, right) || isEqual(left, right));
        case Op::GreaterOrEqual:
            return truth(isLess(right, left) || isEqual(left, right));
        case Op::Equal:
            return truth(isEqual(left, right));
        case Op::NotEqual:
            return truth(!isEqual(left, right));
        case Op::BitAnd:
            return left.toInteger() & right.toInteger();
        case Op::BitXor:
            return left.toInteger() ^ right.toInteger();
        default:
            return left.toInteger() | right.toInteger();
        }
    }

    FormulaNumber power(FormulaNumber base, FormulaNumber exponent) const
    {
        if (!base.isTrue() && exponent.toReal() < 0)
            fail("division by zero");
        if (m_isInteger)
            return integerPower(base.integer, exponent.integer);
        return std::pow(base.toReal(), exponent.toReal());
    }

    static FormulaNumber difference(FormulaNumber left, FormulaNumber right, bool isInteger)
    {
        if (isInteger)
            return wrapped(bitsOf(left.integer) - bitsOf(right.integer));
        return OrvDescription::difference(left, right);
    }

    template<typename T>
    T divisor(T value) const
    {
        if (value == 0)
            fail("division by zero");
        return value;
    }

    [[noreturn]] void fail(const std::string &why) const
    {
        throw GenICam::RuntimeException((std::string(m_formula.m_owner) + ": " + why).c_str(),
                                        __FILE__, __LINE__);
    }

    const Formula &m_formula;
    const Look &m_look;
    const bool m_isInteger;
    std::array<FormulaNumber, 16> m_fewNumbers; ///< the first element is unused
    std::vector<FormulaNumber> m_manyNumbers;
    FormulaNumber *m_top = m_fewNumbers.data();
    std::vector<std::optional<FormulaNumber>> m_variables;
};

Formula::Formula(std::string_view text, const FormulaNames &names, std::string_view owner)
    : m_owner(owner)
{
    try {
        m_code = FormulaParser(names).parse(text);
    } catch (const FormulaParser::Error &error) {
        m_error = "the formula makes no sense: " + error.text;
    }
}

int64_t Formula::integer(const Look &look) const
{
    if (m_code.callsFunctions)
        return toInteger(real(look));
    return Evaluation(*this, look, true).run().integer;
}

double Formula::real(const Look &look) const
{
    return Evaluation(*this, look, false).run().toReal();
}

} // namespace OrvDescription

// SPDX-License-Identifier: MIT
#include "formulaparser.h"

#include <cameraio/limits.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>

namespace Limits = OrvCameraIo::Limits;

namespace OrvDescription {

namespace {

struct Operator
{
    std::string_view token;
    FormulaCode::Op op;
    int level; ///< operators of a higher level bind tighter
    bool isRightToLeft = false;
};

constexpr int highestLevel = 11;

/// A token must come before its own prefixes.
const Operator operators[] = {
    {"||", FormulaCode::Op::Or, 1},          {"&&", FormulaCode::Op::And, 2},
    {"|", FormulaCode::Op::BitOr, 3},        {"^", FormulaCode::Op::BitXor, 4},
    {"&", FormulaCode::Op::BitAnd, 5},       {"==", FormulaCode::Op::Equal, 6},
    {"=", FormulaCode::Op::Equal, 6},        {"<>", FormulaCode::Op::NotEqual, 6},
    {"!=", FormulaCode::Op::NotEqual, 6},    {"<<", FormulaCode::Op::ShiftLeft, 8},
    {"<=", FormulaCode::Op::LessOrEqual, 7}, {"<", FormulaCode::Op::Less, 7},
    {">>", FormulaCode::Op::ShiftRight, 8},  {">=", FormulaCode::Op::GreaterOrEqual, 7},
    {">", FormulaCode::Op::Greater, 7},      {"+", FormulaCode::Op::Add, 9},
    {"-", FormulaCode::Op::Subtract, 9},     {"**", FormulaCode::Op::Power, highestLevel, true},
    {"*", FormulaCode::Op::Multiply, 10},    {"/", FormulaCode::Op::Divide, 10},
    {"%", FormulaCode::Op::Remainder, 10},
};

struct Function
{
    std::string_view name;
    FormulaCode::Op op;
};

const Function functions[] = {
    {"SIN", FormulaCode::Op::Sin},     {"COS", FormulaCode::Op::Cos},
    {"TAN", FormulaCode::Op::Tan},     {"ASIN", FormulaCode::Op::Asin},
    {"ACOS", FormulaCode::Op::Acos},   {"ATAN", FormulaCode::Op::Atan},
    {"EXP", FormulaCode::Op::Exp},     {"LN", FormulaCode::Op::Ln},
    {"LG", FormulaCode::Op::Lg},       {"SQRT", FormulaCode::Op::Sqrt},
    {"ABS", FormulaCode::Op::Abs},     {"SGN", FormulaCode::Op::Sgn},
    {"NEG", FormulaCode::Op::Negate},  {"TRUNC", FormulaCode::Op::Trunc},
    {"FLOOR", FormulaCode::Op::Floor}, {"CEIL", FormulaCode::Op::Ceil},
    {"ROUND", FormulaCode::Op::Round}, {"POW", FormulaCode::Op::Power},
};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

/// Some descriptions write function names in lower case.
std::string capitals(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char c) { return std::toupper(c); });
    return result;
}

/// The number at the beginning of `text`, and its length; 0 if there is none.
std::pair<FormulaNumber, std::size_t> numberAt(std::string_view text)
{
    const char *begin = text.data();
    const char *end = begin + text.size();
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
        uint64_t bits = 0;
        const auto result = std::from_chars(begin + 2, end, bits, 16);
        if (result.ec != std::errc() || result.ptr == begin + 2)
            return {};
        return {static_cast<int64_t>(bits), static_cast<std::size_t>(result.ptr - begin)};
    }
    if (text.empty() || !(isDigit(text[0]) || text[0] == '.'))
        return {};
    double real = 0;
    const auto asReal = std::from_chars(begin, end, real);
    if (asReal.ptr == begin)
        return {};
    const auto length = static_cast<std::size_t>(asReal.ptr - begin);
    int64_t integer = 0;
    const auto asInteger = std::from_chars(begin, end, integer);
    if (asInteger.ec == std::errc() && asInteger.ptr == asReal.ptr)
        return {integer, length};
    if (asReal.ec == std::errc::result_out_of_range)
        return {};
    return {real, length};
}

} // namespace

class FormulaParser::Nesting
{
public:
    explicit Nesting(FormulaParser &parser) : m_depth(parser.m_depth)
    {
        if (m_depth == Limits::formulaDepth)
            parser.fail("too many parentheses within each other");
        ++m_depth;
    }
    ~Nesting() { --m_depth; }
    Nesting(const Nesting &) = delete;
    Nesting &operator=(const Nesting &) = delete;

private:
    int &m_depth;
};

FormulaCode FormulaParser::parse(std::string_view text)
{
    parseWhole(text);
    return std::move(m_code);
}

void FormulaParser::parseWhole(std::string_view text)
{
    m_totalSize += text.size();
    if (m_totalSize > Limits::formulaSize)
        fail("the formula is too long");
    m_text = text;
    m_position = 0;
    parseChoices();
    if (m_position != m_text.size())
        fail("'" + std::string(m_text.substr(m_position, 10)) + "' is not expected there");
}

void FormulaParser::parseChoices()
{
    const Nesting nesting(*this);
    std::vector<std::size_t> jumps;
    parseBinary(1);
    while (take("?")) {
        const std::size_t choose = emit(Op::Choose, -1);
        parseChoices();
        require(":");
        jumps.push_back(emit(Op::Jump, -1));
        setJumpTarget(choose);
        parseBinary(1);
    }
    for (const std::size_t jump : jumps)
        setJumpTarget(jump);
}

void FormulaParser::parseBinary(int lowestLevel)
{
    parseOperand();
    for (;;) {
        skipBlanks();
        const char next = m_position < m_text.size() ? m_text[m_position] : ')';
        const auto found =
            std::find_if(std::begin(operators), std::end(operators), [&](const Operator &o) {
                return o.token[0] == next && m_text.substr(m_position, o.token.size()) == o.token;
            });
        if (found == std::end(operators) || found->level < lowestLevel)
            return;
        m_position += found->token.size();
        const bool isLogical = found->op == Op::And || found->op == Op::Or;
        const std::size_t jump = isLogical ? emit(found->op, -1) : 0;
        const std::size_t operand = m_code.steps.size();
        if (found->isRightToLeft) {
            const Nesting nesting(*this);
            parseBinary(found->level);
        } else {
            parseBinary(found->level + 1);
        }
        if (isLogical) {
            emit(Op::Truth, 0);
            setJumpTarget(jump);
        } else if (found->op == Op::Divide || found->op == Op::Remainder) {
            emitDivision(found->op, operand);
        } else {
            emit(found->op, -1);
            m_code.canFail = m_code.canFail || found->op == Op::Power;
        }
    }
}

void FormulaParser::parseOperand()
{
    std::vector<Sign> signs;
    for (;;) {
        if (take("-"))
            signs.push_back(Sign::Minus);
        else if (take("~"))
            signs.push_back(Sign::Complement);
        else if (!take("+"))
            break;
    }
    if (take("(")) {
        parseChoices();
        require(")");
    } else if (m_position == m_text.size()) {
        fail("something is missing at the end");
    } else if (isLetter(m_text[m_position])) {
        parseIdentifier();
    } else {
        parseNumber();
    }
    for (auto sign = signs.rbegin(); sign != signs.rend(); ++sign)
        emit(*sign == Sign::Minus ? Op::Negate : Op::Complement, 0);
}

void FormulaParser::parseNumber()
{
    const auto [number, length] = numberAt(m_text.substr(m_position));
    if (length == 0)
        fail("'" + std::string(m_text.substr(m_position, 10)) + "' is not expected there");
    m_position += length;
    if (m_position < m_text.size() && (isLetter(m_text[m_position]) || m_text[m_position] == '.'))
        fail("a number goes on with '" + std::string(m_text.substr(m_position, 1)) + "'");
    emitNumber(number);
}

void FormulaParser::parseIdentifier()
{
    std::size_t end = m_position;
    while (end < m_text.size() &&
           (isLetter(m_text[end]) || isDigit(m_text[end]) || m_text[end] == '.'))
        ++end;
    const std::string_view name = m_text.substr(m_position, end - m_position);
    m_position = end;
    const std::size_t point = name.find('.');
    const bool hasPart = point != std::string_view::npos;
    const std::string_view part = hasPart ? name.substr(point + 1) : std::string_view();
    if (const FormulaNames::Meaning *meaning = m_names.find(name)) {
        if (meaning->kind == FormulaNames::Kind::Variable)
            return parseVariable(meaning->variable, part);
        if (meaning->kind == FormulaNames::Kind::Constant)
            return parseConstant(meaning->text);
        return parseExpression(meaning->text);
    }
    if (hasPart) {
        const FormulaNames::Meaning *meaning = m_names.find(name.substr(0, point));
        if (meaning && meaning->kind == FormulaNames::Kind::Variable)
            return parseVariable(meaning->variable, part);
    }
    if (!parseFunction(name) && !parseFixedNumber(name))
        fail("'" + std::string(name) + "' is unknown");
}

void FormulaParser::parseVariable(std::size_t variable, std::string_view part)
{
    const std::string_view wanted = part == "Value" ? std::string_view() : part;
    const auto [use, isNew] = m_uses.try_emplace({variable, wanted}, m_code.uses.size());
    if (isNew)
        m_code.uses.push_back({static_cast<uint32_t>(variable), wanted});
    emit(Op::Variable, 1, use->second);
}

void FormulaParser::parseConstant(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    const bool isNegative = !text.empty() && text.front() == '-';
    if (isNegative)
        text.remove_prefix(1);
    const auto [number, length] = numberAt(text);
    if (length == 0 || length != text.size())
        fail("a constant is no number");
    emitNumber(number);
    if (isNegative)
        emit(Op::Negate, 0);
}

void FormulaParser::parseExpression(std::string_view text)
{
    // Cyclic sub-expressions reach the limit, too.
    const Nesting nesting(*this);
    const std::string_view outerText = m_text;
    const std::size_t outerPosition = m_position;
    parseWhole(text);
    m_text = outerText;
    m_position = outerPosition;
}

bool FormulaParser::parseFunction(std::string_view name)
{
    const std::string wanted = capitals(name);
    const auto found = std::find_if(std::begin(functions), std::end(functions),
                                    [&](const Function &f) { return f.name == wanted; });
    if (found == std::end(functions))
        return false;
    m_code.callsFunctions = true;
    require("(");
    parseChoices();
    if (found->op == Op::Power) {
        require(",");
        parseChoices();
        emit(Op::Power, -1);
        m_code.canFail = true;
    } else if (found->op == Op::Round && take(",")) {
        parseChoices();
        emit(Op::RoundTo, -1);
    } else {
        emit(found->op, 0);
    }
    require(")");
    return true;
}

bool FormulaParser::parseFixedNumber(std::string_view name)
{
    const std::string wanted = capitals(name);
    if (wanted != "PI" && wanted != "E")
        return false;
    m_code.callsFunctions = true;
    emitNumber(wanted == "PI" ? 3.14159265358979323846 : 2.71828182845904523536);
    if (take("("))
        require(")");
    return true;
}

void FormulaParser::skipBlanks()
{
    while (m_position < m_text.size() && isBlank(m_text[m_position]))
        ++m_position;
}

bool FormulaParser::take(std::string_view token)
{
    skipBlanks();
    if (m_position == m_text.size() || m_text[m_position] != token[0] ||
        m_text.substr(m_position, token.size()) != token)
        return false;
    m_position += token.size();
    skipBlanks();
    return true;
}

void FormulaParser::require(std::string_view token)
{
    if (!take(token))
        fail("'" + std::string(token) + "' is missing");
}

void FormulaParser::fail(const std::string &why) const
{
    throw Error{why};
}

std::size_t FormulaParser::emit(Op op, int change, std::size_t operand)
{
    m_code.steps.push_back({op, static_cast<uint32_t>(operand)});
    m_height += change;
    m_code.stackSize = std::max(m_code.stackSize, static_cast<std::size_t>(m_height));
    return m_code.steps.size() - 1;
}

void FormulaParser::emitNumber(FormulaNumber number)
{
    emit(Op::Number, 1, m_code.numbers.size());
    m_code.numbers.push_back(number);
}

void FormulaParser::emitDivision(Op op, std::size_t divisor)
{
    const FormulaCode::Step &last = m_code.steps.back();
    // The remainder is an integer operation.
    const bool isSafe = m_code.steps.size() == divisor + 1 && last.op == Op::Number &&
                        m_code.numbers[last.operand].toInteger() != 0;
    m_code.canFail = m_code.canFail || !isSafe;
    emit(op, -1);
}

void FormulaParser::setJumpTarget(std::size_t step)
{
    m_code.steps[step].operand = static_cast<uint32_t>(m_code.steps.size());
}

} // namespace OrvDescription

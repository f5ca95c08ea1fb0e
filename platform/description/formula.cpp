// SPDX-License-Identifier: MIT
#include "formula.h"

#include "description.h"
#include "errors.h"
#include "rawvalue.h"

#include <genapi/nodes/enumerationnode.h>
#include <genapi/nodes/floatnode.h>
#include <genapi/nodes/integernode.h>

#include <arv.h>

#include <algorithm>
#include <cctype>

using namespace OrvGenApi;

namespace OrvDescription {

namespace {

/// The number of a node that the part of a variable's name behind the point asks for, as an
/// integer or a floating-point number.
struct Number
{
    bool isReal;
    int64_t integer;
    double real;

    Number(int64_t value) : isReal(false), integer(value), real(static_cast<double>(value)) {}
    Number(double value) : isReal(true), integer(0), real(value) {}
};

ArvEvaluator *newEvaluator(const DescriptionNode &node, const std::string &text)
{
    ArvEvaluator *evaluator = arv_evaluator_new(text.c_str());
    for (const DescriptionProperty &property : node.properties) {
        if (property.tag == "Constant")
            arv_evaluator_set_constant(evaluator, property.name.c_str(), property.text.c_str());
        else if (property.tag == "Expression")
            arv_evaluator_set_sub_expression(evaluator, property.name.c_str(),
                                             property.text.c_str());
    }
    return evaluator;
}

bool callsFunction(const std::string &text)
{
    for (auto open = text.find('('); open != std::string::npos; open = text.find('(', open + 1)) {
        if (open > 0 && std::isupper(static_cast<unsigned char>(text[open - 1])))
            return true;
    }
    return false;
}

bool divides(const DescriptionNode &node, const std::string &text)
{
    const auto hasDivision = [](const std::string &formula) {
        return formula.find_first_of("/%") != std::string::npos;
    };
    return hasDivision(text) ||
           std::any_of(node.properties.begin(), node.properties.end(),
                       [&](const DescriptionProperty &property) {
                           return property.tag == "Expression" && hasDivision(property.text);
                       });
}

Number valueOf(Node &node)
{
    if (isReal(node))
        return rawReal(node);
    return rawInteger(node);
}

Number entryValue(Node &node, const std::string &symbolic)
{
    auto *enumeration = dynamic_cast<EnumerationNode *>(&node);
    GenApi::IEnumEntry *entry =
        enumeration ? enumeration->GetEntryByName(symbolic.c_str()) : nullptr;
    if (!entry)
        throw GenICam::RuntimeException(
            ("'" + node.name() + "' has no entry '" + symbolic + "'").c_str(), __FILE__, __LINE__);
    return entry->GetValue();
}

template<typename NumberNode>
Number limitOf(NumberNode &node, const std::string &which)
{
    if (which == "Min")
        return node.GetMin();
    if (which == "Max")
        return node.GetMax();
    return node.GetInc();
}

Number numberOf(Node &node, const std::string &which)
{
    if (which.empty() || which == "Value")
        return valueOf(node);
    for (const std::string prefix : {"Enum.", "Entry."}) {
        if (which.compare(0, prefix.size(), prefix) == 0)
            return entryValue(node, which.substr(prefix.size()));
    }
    if (which == "Min" || which == "Max" || which == "Inc") {
        if (auto *integer = dynamic_cast<IntegerNode *>(&node))
            return limitOf(*integer, which);
        if (auto *real = dynamic_cast<FloatNode *>(&node))
            return limitOf(*real, which);
    }
    throw GenICam::RuntimeException(("'" + node.name() + "' has no number '" + which + "'").c_str(),
                                    __FILE__, __LINE__);
}

/// What a formula nests deeper is left to Aravis as a whole.
const int MaximumDepth = 64;

/// The text without the white space and the parentheses around it.
std::string stripped(std::string text)
{
    const char *space = " \t\r\n";
    for (int pair = 0; pair < MaximumDepth; ++pair) {
        const auto first = text.find_first_not_of(space);
        if (first == std::string::npos)
            return {};
        text = text.substr(first, text.find_last_not_of(space) - first + 1);
        if (text.front() != '(')
            return text;
        int depth = 0;
        std::size_t end = 0;
        for (; end < text.size(); ++end) {
            depth += (text[end] == '(') - (text[end] == ')');
            if (depth == 0)
                break;
        }
        if (end + 1 != text.size())
            return text;
        text = text.substr(1, text.size() - 2);
    }
    return text;
}

/// The places of the question mark and the colon of a text that is "condition ? value : other" as
/// a whole; both `npos` when it is something else.
std::pair<std::size_t, std::size_t> findChoice(const std::string &text)
{
    const auto none = std::make_pair(std::string::npos, std::string::npos);
    auto question = std::string::npos;
    int depth = 0;
    int open = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        depth += (text[i] == '(') - (text[i] == ')');
        if (depth != 0)
            continue;
        if (text[i] == '?') {
            if (open++ == 0 && question == std::string::npos)
                question = i;
        } else if (text[i] == ':' && --open <= 0) {
            return open == 0 ? std::make_pair(question, i) : none;
        }
    }
    return none;
}

} // namespace

/// A formula, or a choice between two. Aravis computes both sides of a choice and fails when it
/// divides by zero in the one that is not taken, which is just what a description's
/// "(X = 0) ? 0 : (1 / X)" guards against.
struct Formula::Term
{
    ArvEvaluator *evaluator; ///< of the condition when there is a choice
    std::unique_ptr<Term> yes;
    std::unique_ptr<Term> no;

    explicit Term(ArvEvaluator *newEvaluator) : evaluator(newEvaluator) {}
    ~Term() { g_object_unref(evaluator); }
    Term(const Term &) = delete;
    Term &operator=(const Term &) = delete;

    template<typename Function>
    void forEach(const Function &function)
    {
        function(evaluator);
        if (yes) {
            yes->forEach(function);
            no->forEach(function);
        }
    }
};

std::unique_ptr<Formula::Term> Formula::newTerm(const DescriptionNode &node,
                                                const std::string &text, int maximumDepth)
{
    const std::string inner = maximumDepth > 0 ? stripped(text) : text;
    const auto [question, colon] = findChoice(inner);
    if (maximumDepth == 0 || question == std::string::npos)
        return std::make_unique<Term>(newEvaluator(node, inner));
    auto term = std::make_unique<Term>(newEvaluator(node, inner.substr(0, question)));
    term->yes = newTerm(node, inner.substr(question + 1, colon - question - 1), maximumDepth - 1);
    term->no = newTerm(node, inner.substr(colon + 1), maximumDepth - 1);
    return term;
}

Formula::Formula(const DescriptionNode &node, const std::string &text)
    : m_owner(node.name)
    , m_usesFunctions(callsFunction(text))
    , m_divides(divides(node, text))
    , m_term(newTerm(node, text, m_divides ? MaximumDepth : 0))
{
    for (const DescriptionProperty &property : node.properties)
        m_usesFunctions =
            m_usesFunctions || (property.tag == "Expression" && callsFunction(property.text));
}

bool Formula::isWellFormed(const DescriptionNode &node, const std::string &text,
                           const std::vector<std::string> &variables)
{
    if (divides(node, text))
        return true;
    ArvEvaluator *evaluator = newEvaluator(node, text);
    for (const std::string &variable : variables)
        arv_evaluator_set_int64_variable(evaluator, variable.c_str(), 1);
    GError *error = nullptr;
    arv_evaluator_evaluate_as_double(evaluator, &error);
    g_object_unref(evaluator);
    const bool wellFormed = !error;
    g_clear_error(&error);
    return wellFormed;
}

Formula::~Formula() = default;

void Formula::addVariable(const std::string &name, Node &node)
{
    m_variables.emplace_back(name, &node);
}

void Formula::setInteger(const std::string &name, int64_t value)
{
    // The smallest integer divided by -1 does not fit into an integer: the processor would end the
    // program. It is the lower limit of everything that states none.
    if (m_divides && value == INT64_MIN)
        ++value;
    m_term->forEach([&](ArvEvaluator *evaluator) {
        arv_evaluator_set_int64_variable(evaluator, name.c_str(), value);
    });
}

void Formula::setReal(const std::string &name, double value)
{
    m_term->forEach([&](ArvEvaluator *evaluator) {
        arv_evaluator_set_double_variable(evaluator, name.c_str(), value);
    });
}

void Formula::setVariable(const std::string &name, Node &node)
{
    const auto point = name.find('.');
    const Number number =
        numberOf(node, point == std::string::npos ? std::string() : name.substr(point + 1));
    if (number.isReal)
        setReal(name, number.real);
    else
        setInteger(name, number.integer);
}

void Formula::setVariables()
{
    for (const auto &[name, node] : m_variables)
        setVariable(name, *node);
}

int64_t Formula::evaluateInteger(const Term &term)
{
    GError *error = nullptr;
    const int64_t value = m_usesFunctions
                              ? toInteger(arv_evaluator_evaluate_as_double(term.evaluator, &error))
                              : arv_evaluator_evaluate_as_int64(term.evaluator, &error);
    throwIfFailed(error, m_owner);
    if (!term.yes)
        return value;
    return evaluateInteger(value != 0 ? *term.yes : *term.no);
}

double Formula::evaluateReal(const Term &term)
{
    GError *error = nullptr;
    const double value = arv_evaluator_evaluate_as_double(term.evaluator, &error);
    throwIfFailed(error, m_owner);
    if (!term.yes)
        return value;
    return evaluateReal(value != 0 ? *term.yes : *term.no);
}

int64_t Formula::integer(const std::string &inputName, int64_t input)
{
    setVariables();
    if (!inputName.empty())
        setInteger(inputName, input);
    return evaluateInteger(*m_term);
}

double Formula::real(const std::string &inputName, double input)
{
    setVariables();
    if (!inputName.empty())
        setReal(inputName, input);
    return evaluateReal(*m_term);
}

} // namespace OrvDescription

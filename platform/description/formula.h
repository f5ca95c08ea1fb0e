// SPDX-License-Identifier: MIT
#pragma once

#include <genapi/nodes/node.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace OrvDescription {

struct DescriptionNode;

/// A formula of a description with its variables, evaluated by Aravis.
class Formula
{
public:
    /// `text` is the formula; constants and sub-expressions are those of `node`.
    Formula(const DescriptionNode &node, const std::string &text);

    /// True when the formula makes sense whatever the values of its variables (those of
    /// `variables`). One that divides does not count as wrong: there may be nothing to divide by.
    static bool isWellFormed(const DescriptionNode &node, const std::string &text,
                             const std::vector<std::string> &variables);
    ~Formula();
    Formula(const Formula &) = delete;
    Formula &operator=(const Formula &) = delete;

    /// A variable whose value is `node`'s. The part of the name behind a point says which of its
    /// numbers: "Value" (as without a point), "Min", "Max", "Inc", or "Enum" or "Entry" and the
    /// symbolic name of an entry.
    void addVariable(const std::string &name, OrvGenApi::Node &node);

    /// `input` is the name and value of one more variable; its name may be empty. Throws
    /// `RuntimeException` when the formula cannot be evaluated, and what the variables throw.
    int64_t integer(const std::string &inputName = {}, int64_t input = 0);
    double real(const std::string &inputName = {}, double input = 0);

private:
    struct Term;

    static std::unique_ptr<Term> newTerm(const DescriptionNode &node, const std::string &text,
                                         int maximumDepth);
    int64_t evaluateInteger(const Term &term);
    double evaluateReal(const Term &term);
    void setVariables();
    void setInteger(const std::string &name, int64_t value);
    void setReal(const std::string &name, double value);
    void setVariable(const std::string &name, OrvGenApi::Node &node);

    std::string m_owner;
    bool m_usesFunctions = false; ///< such as ROUND, which exist for floating-point numbers only
    bool m_divides;
    std::unique_ptr<Term> m_term;
    std::vector<std::pair<std::string, OrvGenApi::Node *>> m_variables;
};

} // namespace OrvDescription

// SPDX-License-Identifier: MIT
#pragma once

#include "formulacode.h"

#include <GenApi/Types.h>

#include <functional>
#include <string>
#include <string_view>

namespace OrvDescription {

class FormulaNames;

/// A formula of a description, parsed once.
class Formula
{
public:
    /// Looks up the number for one of `uses()`. May throw `NotYetKnown`: the formula is evaluated
    /// without the number if that is possible. If there is no result, all other variables are
    /// looked up as well, so that all missing ones become known.
    using Look = std::function<FormulaNumber(const FormulaCode::Use &)>;

    /// `owner` is the name of the node, for messages.
    Formula(std::string_view text, const FormulaNames &names, std::string_view owner);

    /// The error in the formula; empty if there is none.
    const std::string &error() const { return m_error; }

    /// The variables in the formula.
    const std::vector<FormulaCode::Use> &uses() const { return m_code.uses; }

    /// True when the result may be undefined, such as that of a division by 0.
    bool canFail() const { return m_code.canFail; }

    /// The result of integer arithmetic, or of floating-point arithmetic when functions are called.
    /// Only variables that the result depends on can cause a failure. Throws `RuntimeException` for
    /// a division by 0, `NotYetKnown`, and the exceptions of `look`.
    int64_t integer(const Look &look) const;

    /// The result of floating-point arithmetic; bit operations use integers.
    double real(const Look &look) const;

private:
    class Evaluation;

    std::string_view m_owner;
    std::string m_error;
    FormulaCode m_code;
};

} // namespace OrvDescription

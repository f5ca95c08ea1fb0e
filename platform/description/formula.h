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
    /// Looks up the number that one of `uses()` asks for. May throw `NotYetKnown`: the formula is
    /// evaluated without the number where that is possible. If there is no result, all other
    /// variables are looked up as well, so that all missing ones become known.
    using Look = std::function<FormulaNumber(const FormulaCode::Use &)>;

    /// `owner` is the name of the node, for messages.
    Formula(std::string_view text, const FormulaNames &names, std::string_view owner);

    /// What is wrong with the formula, empty when nothing is.
    const std::string &error() const { return m_error; }

    /// The variables that occur in it.
    const std::vector<FormulaCode::Use> &uses() const { return m_code.uses; }

    /// True when there may be no result, such as that of a division by 0.
    bool canFail() const { return m_code.canFail; }

    /// The result, computed with integers, with floating-point numbers when functions are called.
    /// Only the variables that count for the result can make it fail. Throws `RuntimeException` for
    /// a division by 0, `NotYetKnown`, and what `look` throws.
    int64_t integer(const Look &look) const;

    /// The result, computed with floating-point numbers; what works on bits does so on integers.
    double real(const Look &look) const;

private:
    class Evaluation;

    std::string_view m_owner;
    std::string m_error;
    FormulaCode m_code;
};

} // namespace OrvDescription

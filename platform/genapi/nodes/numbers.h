// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Types.h>

#include <cstdint>
#include <optional>
#include <string>

namespace OrvGenApi {

/// An integer as text: decimal, "0x" and hexadecimal digits, dotted quad or colon-separated
/// bytes, by representation.
GENAPI_DECL std::string integerToText(int64_t value, GenApi::ERepresentation representation);

/// The reverse; takes every one of these forms, whatever the representation. Nothing when the text
/// is none of them.
GENAPI_DECL std::optional<int64_t> integerFromText(const std::string &text);

/// A number as text, independent of the locale. `precision` is the number of significant digits
/// (digits after the point in fixed and scientific notation).
GENAPI_DECL std::string floatToText(double value, GenApi::EDisplayNotation notation,
                                    int64_t precision);
GENAPI_DECL std::optional<double> floatFromText(const std::string &text);

/// A number for a message.
GENAPI_DECL std::string numberText(int64_t value);
GENAPI_DECL std::string numberText(double value);

/// True for equal numbers; floating-point numbers may differ by what rounding does to them.
GENAPI_DECL bool areSame(int64_t left, int64_t right);
GENAPI_DECL bool areSame(double left, double right);

/// The text without blanks around it.
GENAPI_DECL std::string trimmed(const std::string &text);

/// True when `value` is `minimum` plus a multiple of `increment`, computed without overflow.
GENAPI_DECL bool isOnIncrement(int64_t value, int64_t minimum, int64_t increment);
GENAPI_DECL bool isOnIncrement(double value, double minimum, double increment);

} // namespace OrvGenApi

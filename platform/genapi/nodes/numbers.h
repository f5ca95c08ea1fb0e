// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Types.h>

#include <cstdint>
#include <optional>
#include <string>

namespace OrvGenApi {

/// An integer as text: decimal, "0x" and hexadecimal digits, dotted quad or colon-separated
/// bytes, by representation.
std::string integerToText(int64_t value, GenApi::ERepresentation representation);

/// The reverse; accepts all of these forms for any representation. Empty for any other text.
std::optional<int64_t> integerFromText(const std::string &text);

/// A number as text, independent of the locale. `precision` is the number of significant digits
/// (digits after the point in fixed and scientific notation).
std::string floatToText(double value, GenApi::EDisplayNotation notation, int64_t precision);
std::optional<double> floatFromText(const std::string &text);

/// A number for a message.
std::string numberText(int64_t value);
std::string numberText(double value);

/// True for equal numbers; floating-point numbers may differ by rounding errors.
bool areSame(int64_t left, int64_t right);
bool areSame(double left, double right);

/// The text without surrounding white space.
std::string trimmed(const std::string &text);

/// True when `value` is `minimum` plus a multiple of `increment`, computed without overflow.
bool isOnIncrement(int64_t value, int64_t minimum, int64_t increment);
bool isOnIncrement(double value, double minimum, double increment);

} // namespace OrvGenApi

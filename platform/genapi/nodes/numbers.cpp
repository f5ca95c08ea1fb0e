// SPDX-License-Identifier: MIT
#include "numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

using namespace GenApi;

namespace OrvGenApi {

namespace {

template<typename T>
std::optional<T> wholeNumber(const std::string &text, int base)
{
    T value{};
    const char *end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value, base);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

/// `count` groups of at most 255, separated by `separator`.
std::optional<int64_t> groups(const std::string &text, char separator, int count, int base)
{
    uint64_t value = 0;
    std::size_t start = 0;
    for (int i = 0; i < count; ++i) {
        const bool last = i == count - 1;
        const auto end = last ? text.size() : text.find(separator, start);
        if (end == std::string::npos)
            return std::nullopt;
        const auto group = wholeNumber<unsigned>(text.substr(start, end - start), base);
        if (!group || *group > 255)
            return std::nullopt;
        value = value << 8 | *group;
        start = end + 1;
    }
    return static_cast<int64_t>(value);
}

} // namespace

std::string integerToText(int64_t value, ERepresentation representation)
{
    const auto bits = static_cast<uint64_t>(value);
    const auto byte = [bits](int index) { return static_cast<unsigned>(bits >> 8 * index & 0xff); };
    char text[32];
    switch (representation) {
    case HexNumber:
        std::snprintf(text, sizeof text, "0x%llX", static_cast<unsigned long long>(bits));
        return text;
    case IPV4Address:
        std::snprintf(text, sizeof text, "%u.%u.%u.%u", byte(3), byte(2), byte(1), byte(0));
        return text;
    case MACAddress:
        std::snprintf(text, sizeof text, "%02X:%02X:%02X:%02X:%02X:%02X", byte(5), byte(4), byte(3),
                      byte(2), byte(1), byte(0));
        return text;
    default:
        return std::to_string(value);
    }
}

std::optional<int64_t> integerFromText(const std::string &text)
{
    const std::string number = trimmed(text);
    if (number.size() > 2 && number[0] == '0' && (number[1] == 'x' || number[1] == 'X')) {
        const auto value = wholeNumber<uint64_t>(number.substr(2), 16);
        return value ? std::optional<int64_t>(static_cast<int64_t>(*value)) : std::nullopt;
    }
    if (number.find(':') != std::string::npos)
        return groups(number, ':', 6, 16);
    if (number.find('.') != std::string::npos)
        return groups(number, '.', 4, 10);
    return wholeNumber<int64_t>(number, 10);
}

std::string floatToText(double value, EDisplayNotation notation, int64_t precision)
{
    const int digits = static_cast<int>(std::clamp<int64_t>(precision, 0, 17));
    auto format = std::chars_format::general;
    if (notation == fnFixed)
        format = std::chars_format::fixed;
    else if (notation == fnScientific)
        format = std::chars_format::scientific;
    char text[512]; // the largest double has 309 digits before the point
    const auto result = std::to_chars(text, text + sizeof text, value, format,
                                      notation == fnAutomatic ? std::max(digits, 1) : digits);
    return std::string(text, result.ptr);
}

std::optional<double> floatFromText(const std::string &text)
{
    std::string number = trimmed(text);
    if (!number.empty() && number.front() == '+')
        number.erase(0, 1);
    double value = 0;
    const char *end = number.data() + number.size();
    const auto result = std::from_chars(number.data(), end, value);
    if (number.empty() || result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

std::string trimmed(const std::string &text)
{
    const char *blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string numberText(int64_t value)
{
    return std::to_string(value);
}

std::string numberText(double value)
{
    return floatToText(value, fnAutomatic, 10);
}

bool areSame(int64_t left, int64_t right)
{
    return left == right;
}

bool areSame(double left, double right)
{
    return std::abs(left - right) <= 1e-9 * std::max(std::abs(left), std::abs(right));
}

bool isOnIncrement(int64_t value, int64_t minimum, int64_t increment)
{
    if (increment <= 1)
        return true;
    const uint64_t distance = static_cast<uint64_t>(value) - static_cast<uint64_t>(minimum);
    return distance % static_cast<uint64_t>(increment) == 0;
}

bool isOnIncrement(double value, double minimum, double increment)
{
    if (!(increment > 0))
        return true;
    // A multiple of the increment is rarely exact; the distance to one must be within the rounding
    // error.
    const double steps = (value - minimum) / increment;
    return std::abs(steps - std::round(steps)) < 1e-6 * std::max(1.0, std::abs(steps));
}

} // namespace OrvGenApi

// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Types.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Conversions between the bytes of a register and values. Pure functions; they throw
/// `RuntimeException` for a size that no number has.
namespace OrvDescription::RegisterCodec {

using Bytes = std::vector<uint8_t>;

struct Format
{
    bool isBigEndian = false; ///< most significant byte first
    bool isSigned = false;

    /// Bit 0 is the most significant one, as descriptions count the bits of big-endian registers.
    bool isBit0Highest = false;

    bool isBitField = false;
    int64_t firstBit = 0; ///< in any order
    int64_t lastBit = 0;
};

/// Numbers of 1 to 8 bytes. Unsigned numbers beyond the largest integer become negative.
int64_t integer(const Bytes &bytes, const Format &format);
Bytes bytesOfInteger(int64_t value, std::size_t size, const Format &format);

/// The bits of the field in byte order; empty for a register without a bit field.
Bytes mask(std::size_t size, const Format &format);

int64_t smallestInteger(std::size_t size, const Format &format);
int64_t largestInteger(std::size_t size, const Format &format);

/// Numbers of 4 or 8 bytes.
double real(const Bytes &bytes, bool isBigEndian);
Bytes bytesOfReal(double value, std::size_t size, bool isBigEndian);
double largestReal(std::size_t size);

/// A text ends at the first zero or at the end of the register.
std::string text(const Bytes &bytes);
Bytes bytesOfText(std::string_view text, std::size_t size);

} // namespace OrvDescription::RegisterCodec

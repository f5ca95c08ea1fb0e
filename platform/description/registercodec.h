// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Types.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What the bytes of a register mean. Pure functions; those that are given a size which has no
/// number throw `RuntimeException`.
namespace OrvDescription::RegisterCodec {

using Bytes = std::vector<uint8_t>;

struct Format
{
    bool isBigEndian = false; ///< the most significant byte comes first
    bool isSigned = false;

    /// Bit 0 is the most significant one, as descriptions count the bits of big-endian registers.
    bool isBit0Highest = false;

    bool isBitField = false;
    int64_t firstBit = 0; ///< in any order
    int64_t lastBit = 0;
};

/// Of 1 to 8 bytes. Unsigned numbers beyond the largest integer become negative.
int64_t integer(const Bytes &bytes, const Format &format);
Bytes bytesOfInteger(int64_t value, std::size_t size, const Format &format);

/// The bits of the field, in the order of the bytes; empty when it is no bit field.
Bytes mask(std::size_t size, const Format &format);

int64_t smallestInteger(std::size_t size, const Format &format);
int64_t largestInteger(std::size_t size, const Format &format);

/// Of 4 or 8 bytes.
double real(const Bytes &bytes, bool isBigEndian);
Bytes bytesOfReal(double value, std::size_t size, bool isBigEndian);
double largestReal(std::size_t size);

/// A text ends at the first zero or with the register.
std::string text(const Bytes &bytes);
Bytes bytesOfText(std::string_view text, std::size_t size);

} // namespace OrvDescription::RegisterCodec

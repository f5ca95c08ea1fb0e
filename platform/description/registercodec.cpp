// SPDX-License-Identifier: MIT
#include "registercodec.h"

#include <Base/GCException.h>

#include <algorithm>
#include <cfloat>
#include <cstring>

namespace OrvDescription::RegisterCodec {

namespace {

[[noreturn]] void fail(const std::string &why)
{
    throw GenICam::RuntimeException(why.c_str(), __FILE__, __LINE__);
}

uint64_t unsignedOf(const Bytes &bytes, bool isBigEndian)
{
    uint64_t value = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        value = value << 8 | bytes[isBigEndian ? i : bytes.size() - 1 - i];
    return value;
}

Bytes bytesOfUnsigned(uint64_t value, std::size_t size, bool isBigEndian)
{
    Bytes bytes(size);
    for (std::size_t i = 0; i < size; ++i, value >>= 8)
        bytes[isBigEndian ? size - 1 - i : i] = static_cast<uint8_t>(value);
    return bytes;
}

/// The bits of a number: the position of the lowest one, from the least significant bit, and the
/// count.
struct Bits
{
    unsigned first;
    unsigned count;

    uint64_t ones() const { return count == 64 ? UINT64_MAX : (uint64_t(1) << count) - 1; }
};

Bits bitsOf(std::size_t size, const Format &format)
{
    if (size < 1 || size > 8)
        fail("an integer of " + std::to_string(size) + " bytes");
    const auto all = static_cast<unsigned>(8 * size);
    if (!format.isBitField)
        return {0, all};
    const int64_t lower = std::min(format.firstBit, format.lastBit);
    const int64_t upper = std::max(format.firstBit, format.lastBit);
    if (lower < 0 || upper >= all)
        fail("bits beyond a register of " + std::to_string(size) + " bytes");
    const auto first = static_cast<unsigned>(format.isBit0Highest ? all - 1 - upper : lower);
    return {first, static_cast<unsigned>(upper - lower + 1)};
}

} // namespace

int64_t integer(const Bytes &bytes, const Format &format)
{
    const Bits bits = bitsOf(bytes.size(), format);
    uint64_t value = unsignedOf(bytes, format.isBigEndian) >> bits.first & bits.ones();
    if (format.isSigned && (value >> (bits.count - 1)) != 0)
        value |= ~bits.ones();
    return static_cast<int64_t>(value);
}

Bytes bytesOfInteger(int64_t value, std::size_t size, const Format &format)
{
    const Bits bits = bitsOf(size, format);
    return bytesOfUnsigned((static_cast<uint64_t>(value) & bits.ones()) << bits.first, size,
                           format.isBigEndian);
}

Bytes mask(std::size_t size, const Format &format)
{
    return format.isBitField ? bytesOfInteger(-1, size, format) : Bytes();
}

int64_t smallestInteger(std::size_t size, const Format &format)
{
    const Bits bits = bitsOf(size, format);
    return format.isSigned ? static_cast<int64_t>(~(bits.ones() >> 1)) : 0;
}

int64_t largestInteger(std::size_t size, const Format &format)
{
    const Bits bits = bitsOf(size, format);
    const uint64_t largest = format.isSigned ? bits.ones() >> 1 : bits.ones();
    return static_cast<int64_t>(std::min<uint64_t>(largest, INT64_MAX));
}

double real(const Bytes &bytes, bool isBigEndian)
{
    const uint64_t bits = bytes.size() <= 8 ? unsignedOf(bytes, isBigEndian) : 0;
    if (bytes.size() == sizeof(float)) {
        const auto half = static_cast<uint32_t>(bits);
        float value;
        std::memcpy(&value, &half, sizeof value);
        return static_cast<double>(value);
    }
    if (bytes.size() != sizeof(double))
        fail("a floating-point number of " + std::to_string(bytes.size()) + " bytes");
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

Bytes bytesOfReal(double value, std::size_t size, bool isBigEndian)
{
    if (size == sizeof(float)) {
        const auto shorter = static_cast<float>(value);
        uint32_t bits;
        std::memcpy(&bits, &shorter, sizeof bits);
        return bytesOfUnsigned(bits, size, isBigEndian);
    }
    if (size != sizeof(double))
        fail("a floating-point number of " + std::to_string(size) + " bytes");
    uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bytesOfUnsigned(bits, size, isBigEndian);
}

double largestReal(std::size_t size)
{
    return size == sizeof(float) ? static_cast<double>(FLT_MAX) : DBL_MAX;
}

std::string text(const Bytes &bytes)
{
    return {bytes.begin(), std::find(bytes.begin(), bytes.end(), 0)};
}

Bytes bytesOfText(std::string_view text, std::size_t size)
{
    Bytes bytes(text.begin(),
                text.begin() + static_cast<std::ptrdiff_t>(std::min(size, text.size())));
    bytes.resize(size);
    return bytes;
}

} // namespace OrvDescription::RegisterCodec

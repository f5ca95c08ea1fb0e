// SPDX-License-Identifier: MIT
#include "utf8.h"

#include <algorithm>
#include <cstring>

namespace OrvCam {

namespace {

constexpr const char replacement[] = "\xEF\xBF\xBD";

/// The first byte of a character determines its number of bytes and the limits of the second byte,
/// which exclude overlong forms, surrogates and numbers beyond the last character.
struct Lead
{
    unsigned char first;
    unsigned char last;
    std::size_t length;
    unsigned char secondMin;
    unsigned char secondMax;
};

constexpr Lead leads[] = {
    {0x00, 0x7F, 1, 0, 0},       {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

unsigned char at(const std::string &bytes, std::size_t position)
{
    return static_cast<unsigned char>(bytes[position]);
}

bool isWithin(unsigned char byte, unsigned char min, unsigned char max)
{
    return byte >= min && byte <= max;
}

/// The length of the character that begins there; 0 for an invalid one.
std::size_t characterAt(const std::string &bytes, std::size_t start)
{
    const unsigned char first = at(bytes, start);
    const auto *lead = std::find_if(std::begin(leads), std::end(leads), [&](const Lead &l) {
        return isWithin(first, l.first, l.last);
    });
    if (lead == std::end(leads) || bytes.size() - start < lead->length)
        return 0;
    for (std::size_t i = 1; i < lead->length; ++i) {
        const bool isSecond = i == 1;
        if (!isWithin(at(bytes, start + i), isSecond ? lead->secondMin : 0x80,
                      isSecond ? lead->secondMax : 0xBF))
            return 0;
    }
    return lead->length;
}

bool isInsideCharacter(char byte)
{
    return (byte & 0xC0) == 0x80;
}

} // namespace

std::string validUtf8(const std::string &bytes)
{
    std::string valid;
    for (std::size_t position = 0; position < bytes.size();) {
        const std::size_t length = characterAt(bytes, position);
        if (length == 0)
            valid += replacement;
        else
            valid.append(bytes, position, length);
        position += std::max<std::size_t>(length, 1);
    }
    return valid;
}

void copyUtf8(const std::string &text, char *to, std::size_t size)
{
    if (!to || size == 0)
        return;
    std::size_t fitting = std::min(text.size(), size - 1);
    while (fitting > 0 && fitting < text.size() && isInsideCharacter(text[fitting]))
        --fitting;
    std::memcpy(to, text.data(), fitting);
    to[fitting] = '\0';
}

} // namespace OrvCam

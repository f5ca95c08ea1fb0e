// SPDX-License-Identifier: MIT
#include "descriptionurl.h"

#include <cameraio/limits.h>

#include <algorithm>
#include <cctype>
#include <optional>

namespace OrvGigEVision {

namespace {

namespace Limits = OrvCameraIo::Limits;

constexpr std::size_t quotedLength = 60;

bool startsWithLocal(const std::string &text)
{
    static const std::string scheme = "local:";
    return text.size() >= scheme.size() &&
           std::equal(scheme.begin(), scheme.end(), text.begin(), [](char wanted, char given) {
               return wanted == std::tolower(static_cast<unsigned char>(given));
           });
}

/// Up to 16 hexadecimal digits and no other characters.
std::optional<uint64_t> hexadecimal(const std::string &text)
{
    const auto isDigit = [](char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; };
    if (text.empty() || text.size() > 16 || !std::all_of(text.begin(), text.end(), isDigit))
        return std::nullopt;
    return std::stoull(text, nullptr, 16);
}

std::string trimmed(const std::string &text)
{
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos)
        return std::string();
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

} // namespace

DescriptionUrl DescriptionUrl::parse(const std::string &text)
{
    DescriptionUrl url;
    url.text = text;
    const std::string whole = trimmed(text);
    if (whole.empty()) {
        url.problem = "The camera names no description.";
        return url;
    }
    if (!startsWithLocal(whole)) {
        url.problem =
            "The camera's description is not in the camera, but at " + quotable(whole) + '.';
        return url;
    }

    // Parsed from the end, because the name may contain any characters, even a question mark.
    const auto second = whole.rfind(';');
    const auto first = second == std::string::npos || second == 0 ? std::string::npos
                                                                  : whole.rfind(';', second - 1);
    std::optional<uint64_t> address;
    std::optional<uint64_t> size;
    if (first != std::string::npos) {
        address = hexadecimal(trimmed(whole.substr(first + 1, second - first - 1)));
        const std::string rest = whole.substr(second + 1);
        size = hexadecimal(trimmed(rest.substr(0, rest.find('?'))));
    }
    if (!address || !size) {
        url.problem =
            "The camera does not tell where it holds its description: " + quotable(whole) + '.';
        return url;
    }
    if (*size == 0 || *size > Limits::downloadSize) {
        url.problem = "The camera's description is empty or too long: " + quotable(whole) + '.';
        return url;
    }
    // The memory is read in words, so the last word must also be in the address space.
    const uint64_t end = (*address + *size + 3) & ~uint64_t(3);
    if (*address > 0xFFFFFFFF || end > uint64_t(1) << 32) {
        url.problem =
            "The camera's description ends outside of its memory: " + quotable(whole) + '.';
        return url;
    }
    url.address = static_cast<uint32_t>(*address);
    url.size = static_cast<uint32_t>(*size);
    return url;
}

std::string quotable(const std::string &text)
{
    std::string result = text.substr(0, quotedLength);
    for (char &c : result) {
        if (c < 0x20 || c > 0x7E)
            c = '?';
    }
    return '"' + result + (text.size() > quotedLength ? "..." : "") + '"';
}

} // namespace OrvGigEVision

// SPDX-License-Identifier: MIT
#include "registernode.h"

#include "nodemapbase.h"

#include <algorithm>
#include <charconv>

using namespace GenApi;

namespace OrvGenApi {

void RegisterNode::Set(const uint8_t *buffer, int64_t length, bool verify)
{
    write(
        [&] {
            if (verify)
                requireWritable();
            if (!buffer || length < 0 || length > GetLength())
                throw GenICam::OutOfRangeException(("The register '" + name() + "' holds " +
                                                    std::to_string(GetLength()) + " bytes")
                                                       .c_str(),
                                                   __FILE__, __LINE__);
        },
        [&] { writeBytes(std::vector<uint8_t>(buffer, buffer + length)); });
}

std::vector<uint8_t> RegisterNode::bytes(bool ignoreCache)
{
    if (ignoreCache)
        map().refresh(*this);
    return map().answer([this] {
        requireReadable();
        return m_bytes.get(valueIsCachable(), [this] { return readBytes(); });
    });
}

void RegisterNode::Get(uint8_t *buffer, int64_t length, bool, bool ignoreCache)
{
    const std::vector<uint8_t> contents = bytes(ignoreCache);
    if (!buffer || length < 0 || length > static_cast<int64_t>(contents.size()))
        throw GenICam::OutOfRangeException(
            ("The register '" + name() + "' holds " + std::to_string(contents.size()) + " bytes")
                .c_str(),
            __FILE__, __LINE__);
    std::copy_n(contents.begin(), length, buffer);
}

int64_t RegisterNode::GetLength(bool)
{
    return map().answer(
        [this] { return m_length.get(limitsAreCachable(), [this] { return readLength(); }); });
}

std::string RegisterNode::hexText(const std::vector<uint8_t> &bytes)
{
    static const char digits[] = "0123456789abcdef";
    std::string text = "0x";
    for (const uint8_t byte : bytes) {
        text += digits[byte >> 4];
        text += digits[byte & 0xf];
    }
    return text;
}

GenICam::gcstring RegisterNode::ToString(bool, bool ignoreCache)
{
    return hexText(bytes(ignoreCache)).c_str();
}

void RegisterNode::FromString(const GenICam::gcstring &text, bool verify)
{
    std::string digits = text.c_str();
    if (digits.compare(0, 2, "0x") == 0 || digits.compare(0, 2, "0X") == 0)
        digits.erase(0, 2);
    std::vector<uint8_t> contents(digits.size() / 2);
    bool valid = digits.size() % 2 == 0;
    for (std::size_t i = 0; valid && i < contents.size(); ++i) {
        const char *first = digits.data() + 2 * i;
        const auto result = std::from_chars(first, first + 2, contents[i], 16);
        valid = result.ec == std::errc() && result.ptr == first + 2;
    }
    if (!valid)
        throw GenICam::InvalidArgumentException(
            ("'" + std::string(text.c_str()) + "' are no hexadecimal bytes for '" + name() + "'")
                .c_str(),
            __FILE__, __LINE__);
    Set(contents.data(), static_cast<int64_t>(contents.size()), verify);
}

bool RegisterNode::IsValueCacheValid() const
{
    const AutoLock lock(map().GetLock());
    return m_bytes.isValid();
}

void RegisterNode::dropCache()
{
    Node::dropCache();
    m_bytes.drop();
    m_length.drop();
}

} // namespace OrvGenApi

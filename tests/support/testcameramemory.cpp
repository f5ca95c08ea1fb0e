// SPDX-License-Identifier: MIT
#include "testcameramemory.h"

#include "testgvcp.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

constexpr uint32_t smallNumbers = 7;
constexpr uint32_t longestFill = 64 * 1024;

uint32_t reversed(uint32_t value)
{
    return value << 24 | (value & 0xFF00) << 8 | (value >> 8 & 0xFF00) | value >> 24;
}

/// The contents of an element without attributes; `missing` if there is none.
std::string contentsOf(const std::string &text, const std::string &element,
                       const std::string &missing = std::string())
{
    const auto start = text.find('<' + element + '>');
    if (start == std::string::npos)
        return missing;
    const auto from = start + element.size() + 2;
    return text.substr(from, text.find('<', from) - from);
}

/// Whether the start tag of a register begins at this position.
bool isRegister(const std::string &description, std::size_t position)
{
    for (const char *tag : {"<IntReg", "<MaskedIntReg", "<FloatReg", "<StringReg", "<StructReg",
                            "<Register ", "<IntSwissKnife", "<IntConverter"}) {
        if (description.compare(position, std::strlen(tag), tag) == 0)
            return true;
    }
    return false;
}

/// The element of a register that encloses the position of its address.
std::string elementAround(const std::string &description, std::size_t position)
{
    std::size_t start = position;
    while (start > 0 && !isRegister(description, start)) {
        const auto before = description.rfind('<', start - 1);
        start = before == std::string::npos ? 0 : before;
    }
    const auto nameEnd = description.find_first_of(" >\n\r\t", start);
    const auto end =
        description.find("</" + description.substr(start + 1, nameEnd - start - 1), position);
    return description.substr(start, end == std::string::npos ? end : end - start);
}

std::string filling(const std::string &element, uint32_t size, uint32_t number)
{
    std::string bytes = TestGvcp::bytesOf(number, size);
    if (element.compare(0, 10, "<StringReg") == 0)
        return ("T" + std::to_string(number) + std::string(size, '\0')).substr(0, size);
    if (element.compare(0, 9, "<FloatReg") == 0 && size == 4) {
        const float value = static_cast<float>(number) + 0.5f;
        uint32_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        bytes = TestGvcp::bytesOf(bits, size);
    } else if (element.compare(0, 9, "<FloatReg") == 0 && size == 8) {
        const double value = number + 0.5;
        uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        bytes = TestGvcp::bytesOf(bits, size);
    }
    if (contentsOf(element, "Endianess").find("LittleEndian") != std::string::npos)
        std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

} // namespace

bool TestCameraMemory::has(uint32_t address) const
{
    return m_unknown != Unknown::Refused || m_words.count(address) || isBlock(address);
}

std::optional<uint32_t> TestCameraMemory::word(uint32_t address)
{
    const auto found = m_words.find(address);
    if (found != m_words.end()) {
        const auto counting = m_countUps.find(address);
        if (counting == m_countUps.end())
            return found->second;
        const CountUp &count = counting->second;
        const auto steps = (Clock::now() - count.start) / count.interval;
        return found->second + static_cast<uint32_t>(steps) * count.step;
    }
    const auto after = m_blocks.upper_bound(address);
    if (isBlock(address)) {
        const auto &[start, contents] = *std::prev(after);
        return TestGvcp::number(contents, address - start);
    }
    if (m_unknown == Unknown::Refused)
        return std::nullopt;
    return m_unknown == Unknown::Zero ? 0 : address / 4 % smallNumbers;
}

void TestCameraMemory::setWord(uint32_t address, uint32_t value)
{
    m_words[address] = value;
    const auto counting = m_countUps.find(address);
    if (counting != m_countUps.end())
        counting->second.start = Clock::now();
}

std::optional<std::string> TestCameraMemory::bytes(uint32_t address, uint32_t size)
{
    std::string result;
    for (uint32_t i = 0; i < size; i += 4) {
        const auto value = word(address + i);
        if (!value)
            return std::nullopt;
        result += TestGvcp::bytesOf(view(address + i, *value));
    }
    return result;
}

void TestCameraMemory::setBytes(uint32_t address, std::string bytes)
{
    bytes.resize((bytes.size() + 3) / 4 * 4, '\0');
    for (uint32_t i = 0; i < bytes.size(); i += 4)
        setWord(address + i, view(address + i, TestGvcp::number(bytes, i)));
}

void TestCameraMemory::setText(uint32_t address, std::size_t size, const std::string &text)
{
    setBytes(address, (text + std::string(size, '\0')).substr(0, size));
}

void TestCameraMemory::addBlock(uint32_t address, std::string bytes)
{
    bytes.resize((bytes.size() + 3) / 4 * 4, '\0');
    m_blocks[address] = std::move(bytes);
}

bool TestCameraMemory::isBlock(uint32_t address) const
{
    const auto after = m_blocks.upper_bound(address);
    return after != m_blocks.begin() &&
           address - std::prev(after)->first < std::prev(after)->second.size();
}

void TestCameraMemory::fill(const std::string &description)
{
    static const std::string tag = "<Address>";
    std::map<uint32_t, std::string> elements;
    for (auto found = description.find(tag); found != std::string::npos;
         found = description.find(tag, found + 1)) {
        const auto address = static_cast<uint32_t>(
            std::strtoull(description.c_str() + found + tag.size(), nullptr, 0));
        elements.emplace(address, elementAround(description, found));
    }
    uint32_t number = 0;
    for (const auto &[address, element] : elements)
        fillRegister(element, address, number++ % smallNumbers);
}

void TestCameraMemory::fillRegister(const std::string &element, uint32_t address, uint32_t number)
{
    const auto declared = std::strtoul(contentsOf(element, "Length", "4").c_str(), nullptr, 0);
    const uint32_t size = std::min(static_cast<uint32_t>(declared), longestFill);
    const uint32_t start = address & ~3u;
    // A register of two bytes shares its word with another one.
    std::string bytes(address - start, '\0');
    bytes += filling(element, size, number);
    bytes.resize((bytes.size() + 3) / 4 * 4, '\0');
    for (uint32_t i = 0; i < bytes.size(); i += 4) {
        if (!m_words.count(start + i) && !isBlock(start + i))
            setWord(start + i, TestGvcp::number(bytes, i));
    }
}

void TestCameraMemory::countUp(uint32_t address, std::chrono::milliseconds interval, uint32_t step)
{
    m_words[address] = word(address).value_or(0);
    m_countUps[address] = {Clock::now(), interval, step};
}

uint32_t TestCameraMemory::view(uint32_t address, uint32_t value) const
{
    const auto contains = [address](const auto &range) {
        return range.first <= address && address <= range.second;
    };
    return std::any_of(m_twoViews.begin(), m_twoViews.end(), contains) ? reversed(value) : value;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The registers of a TestCamera: a sparse space of 4-byte words, and read-only blocks of bytes
/// (its descriptions). A word is stored as the number that READREG returns.
class TestCameraMemory
{
public:
    using Clock = std::chrono::steady_clock;

    /// The behaviour of an address without a register: it is refused, is a register that holds 0,
    /// or is one that holds a small number.
    enum class Unknown { Refused, Zero, Filled };

    void setUnknown(Unknown unknown) { m_unknown = unknown; }

    bool has(uint32_t address) const;
    std::optional<uint32_t> word(uint32_t address);
    void setWord(uint32_t address, uint32_t value);

    /// The bytes that READMEM returns; empty if a part of them is missing.
    std::optional<std::string> bytes(uint32_t address, uint32_t size);
    /// `bytes` is padded with zeros to a multiple of 4.
    void setBytes(uint32_t address, std::string bytes);
    void setText(uint32_t address, std::size_t size, const std::string &text);

    void addBlock(uint32_t address, std::string bytes);
    bool isBlock(uint32_t address) const;

    /// Creates a register at the address in each <Address> element of the description. Its value
    /// contains a number from 0 to 6 that differs from the next register's: an integer in the
    /// register's byte order, a float such as 3.5, or a text such as "T3". Existing registers keep
    /// their values.
    void fill(const std::string &description);

    /// READMEM and WRITEMEM see the bytes of these words in reverse order.
    void addTwoViews(uint32_t first, uint32_t last) { m_twoViews.emplace_back(first, last); }

    /// From now on the register grows by `step` in every interval.
    void countUp(uint32_t address, std::chrono::milliseconds interval, uint32_t step);

private:
    struct CountUp
    {
        Clock::time_point start;
        std::chrono::milliseconds interval;
        uint32_t step;
    };

    uint32_t view(uint32_t address, uint32_t value) const;
    void fillRegister(const std::string &element, uint32_t address, uint32_t number);

    Unknown m_unknown = Unknown::Refused;
    std::map<uint32_t, uint32_t> m_words;
    std::map<uint32_t, std::string> m_blocks;
    std::vector<std::pair<uint32_t, uint32_t>> m_twoViews;
    std::map<uint32_t, CountUp> m_countUps;
};

// SPDX-License-Identifier: MIT
#include "readplan.h"

#include "registermemory.h"

#include <algorithm>

namespace OrvGigEVision {

using OrvCameraIo::ReadTransfer;
using OrvCameraIo::RegisterRange;
using Items = std::vector<std::size_t>;
using Groups = std::vector<Items>;

namespace {

/// A longer register is a text or a table, which some cameras do not return by READREG.
constexpr uint32_t mostWords = 4;

bool isFewWords(const RegisterRange &range)
{
    return range.size % 4 == 0 && range.address % 4 == 0 && range.size <= 4 * mostWords;
}

Groups registerGroups(const std::vector<ReadTransfer> &batch, const Items &items,
                      const ReadableMemory &memory)
{
    Groups groups;
    Groups refused; // groups of one refused register each
    std::size_t words = Gvcp::maxRegisters;
    for (const std::size_t item : items) {
        if (memory.isRefused(batch[item].range)) {
            refused.push_back({item});
            continue;
        }
        const std::size_t more = batch[item].range.size / 4;
        if (words + more > Gvcp::maxRegisters) {
            groups.emplace_back();
            words = 0;
        }
        groups.back().push_back(item);
        words += more;
    }
    groups.insert(groups.end(), refused.begin(), refused.end());
    return groups;
}

Groups memoryGroups(const std::vector<ReadTransfer> &batch, Items items,
                    const ReadableMemory &memory)
{
    std::sort(items.begin(), items.end(),
              [&](std::size_t a, std::size_t b) { return batch[a].range < batch[b].range; });
    Groups groups;
    RegisterMemory::Words group{0, 0};
    bool isOpen = false;
    for (const std::size_t item : items) {
        const RegisterRange &range = batch[item].range;
        const auto words = RegisterMemory::wordsOf(range);
        const auto end = std::max(group.end, words.end);
        const bool isRefused = memory.isRefused(range);
        const bool fits = isOpen && !isRefused && end - group.start <= Gvcp::maxMemorySize &&
                          (words.start <= group.end || memory.covers(group.end, words.start));
        if (fits) {
            groups.back().push_back(item);
            group.end = end;
            continue;
        }
        groups.push_back({item});
        group = words;
        isOpen = !isRefused;
    }
    return groups;
}

} // namespace

void ReadableMemory::setDeclared(std::vector<RegisterRange> declared)
{
    m_declared = std::move(declared);
    m_refused.clear();
    m_isMerged = false;
}

void ReadableMemory::refused(const RegisterRange &range)
{
    if (m_refused.insert(range).second)
        m_isMerged = false;
}

void ReadableMemory::accepted(const RegisterRange &range)
{
    if (m_refused.erase(range) > 0)
        m_isMerged = false;
}

bool ReadableMemory::covers(uint64_t from, uint64_t to) const
{
    if (!m_isMerged)
        merge();
    const auto behind =
        std::upper_bound(m_stretches.begin(), m_stretches.end(), from,
                         [](uint64_t at, const Stretch &stretch) { return at < stretch.start; });
    return behind != m_stretches.begin() && to <= std::prev(behind)->end;
}

void ReadableMemory::merge() const
{
    m_isMerged = true;
    m_stretches.clear();
    for (const RegisterRange &range : m_declared) {
        if (isRefused(range))
            continue;
        const uint64_t end = range.address + range.size;
        if (!m_stretches.empty() && range.address <= m_stretches.back().end)
            m_stretches.back().end = std::max(m_stretches.back().end, end);
        else
            m_stretches.push_back({range.address, end});
    }
}

ReadPlan::ReadPlan(const std::vector<ReadTransfer> &batch, const std::vector<std::size_t> &items,
                   Rules rules, const ReadableMemory &readable)
{
    Items words;
    Items fewWords;
    Items others;
    for (const std::size_t item : items) {
        const RegisterRange &range = batch[item].range;
        if (isWord(range) && rules.usesRegisters())
            words.push_back(item);
        else if (isFewWords(range) && rules.canSplit && !rules.isWordNumber)
            fewWords.push_back(item);
        else
            others.push_back(item);
    }
    if (!rules.canConcatenate) {
        for (const std::size_t item : words)
            registers.push_back({item});
        memory = memoryGroups(batch, others, readable);
        return;
    }

    Items allWords = words;
    allWords.insert(allWords.end(), fewWords.begin(), fewWords.end());
    Items allMemory = others;
    allMemory.insert(allMemory.end(), fewWords.begin(), fewWords.end());
    Groups split = registerGroups(batch, allWords, readable);
    Groups splitMemory = memoryGroups(batch, others, readable);
    registers = registerGroups(batch, words, readable);
    memory = memoryGroups(batch, allMemory, readable);
    if (split.size() + splitMemory.size() < registers.size() + memory.size()) {
        registers = std::move(split);
        memory = std::move(splitMemory);
    }
}

} // namespace OrvGigEVision

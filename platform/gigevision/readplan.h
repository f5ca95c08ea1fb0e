// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/port.h>

#include <cstddef>
#include <set>
#include <vector>

namespace OrvGigEVision {

/// Memory that may be read although it is not requested: that of declared registers, without those
/// that the camera refuses.
class ReadableMemory
{
public:
    void setDeclared(std::vector<OrvCameraIo::RegisterRange> declared);

    void refused(const OrvCameraIo::RegisterRange &range);
    void accepted(const OrvCameraIo::RegisterRange &range);
    bool isRefused(const OrvCameraIo::RegisterRange &range) const { return m_refused.count(range); }

    /// Whether all bytes from one address up to another are readable.
    bool covers(uint64_t from, uint64_t to) const;

private:
    void merge() const;

    std::vector<OrvCameraIo::RegisterRange> m_declared;
    std::set<OrvCameraIo::RegisterRange> m_refused;

    struct Stretch
    {
        uint64_t start;
        uint64_t end;
    };
    mutable std::vector<Stretch> m_stretches; ///< ordered, none touches another
    mutable bool m_isMerged = true;
};

/// Which commands read a batch of registers. The registers are given by their place in the batch.
struct ReadPlan
{
    struct Rules
    {
        bool isWordNumber = false;
        bool canConcatenate = false;
        bool canSplit = false; ///< a longer register is its words, one behind the other

        /// Whether words are read by READREG rather than as memory.
        bool usesRegisters() const { return isWordNumber || canConcatenate; }
    };

    ReadPlan(const std::vector<OrvCameraIo::ReadTransfer> &batch,
             const std::vector<std::size_t> &items, Rules rules, const ReadableMemory &readable);

    /// What one READREG reads, unless one item is read alone.
    std::vector<std::vector<std::size_t>> registers;

    /// What one READMEM reads, likewise; ordered by address.
    std::vector<std::vector<std::size_t>> memory;

    /// Whether a register of this size at this address is a word, which READREG can read.
    static bool isWord(const OrvCameraIo::RegisterRange &range)
    {
        return range.size == 4 && range.address % 4 == 0;
    }
};

} // namespace OrvGigEVision

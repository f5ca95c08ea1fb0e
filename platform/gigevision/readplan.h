// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/port.h>

#include <cstddef>
#include <set>
#include <vector>

namespace OrvGigEVision {

/// The memory that may be read without being requested: that of declared registers, except those
/// that the camera refuses.
class ReadableMemory
{
public:
    void setDeclared(std::vector<OrvCameraIo::RegisterRange> declared);

    void refused(const OrvCameraIo::RegisterRange &range);
    void accepted(const OrvCameraIo::RegisterRange &range);
    bool isRefused(const OrvCameraIo::RegisterRange &range) const { return m_refused.count(range); }

    /// Whether all bytes of an address range are readable.
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
    mutable std::vector<Stretch> m_stretches; ///< sorted, with gaps in between
    mutable bool m_isMerged = true;
};

/// Distributes a batch of registers over commands. Registers are identified by their index in the
/// batch.
struct ReadPlan
{
    struct Rules
    {
        bool isWordNumber = false;
        bool canConcatenate = false;
        bool canSplit = false; ///< a longer register may be read word by word

        /// Whether words are read by READREG or as memory.
        bool usesRegisters() const { return isWordNumber || canConcatenate; }
    };

    ReadPlan(const std::vector<OrvCameraIo::ReadTransfer> &batch,
             const std::vector<std::size_t> &items, Rules rules, const ReadableMemory &readable);

    /// The registers of one READREG, unless one is read alone.
    std::vector<std::vector<std::size_t>> registers;

    /// The registers of one READMEM, sorted by address.
    std::vector<std::vector<std::size_t>> memory;

    /// Whether a register of this size at this address is a word, which READREG can read.
    static bool isWord(const OrvCameraIo::RegisterRange &range)
    {
        return range.size == 4 && range.address % 4 == 0;
    }
};

} // namespace OrvGigEVision

// SPDX-License-Identifier: MIT
#pragma once

#include "port.h"

#include <map>
#include <set>
#include <vector>

namespace OrvCameraIo {

/// The last transfer of each register, including failures.
///
/// Each register is cached separately even if registers overlap, because a camera may answer a part
/// of a longer register with something else. Writing a register invalidates those that overlap it.
/// Not thread-safe.
class RegisterCache
{
public:
    struct Entry
    {
        Status status = Status::NoAnswer;
        std::vector<uint8_t> bytes;
        uint64_t moment = 0; ///< the logical time at which the transfer began
        Clock::time_point time;
    };

    /// Null when the register is not cached.
    const Entry *find(const RegisterRange &range) const;

    void store(const RegisterRange &range, Entry entry);

    /// Invalidates all registers that overlap the range, including itself.
    void forgetOverlapping(const RegisterRange &range);

    /// Drops registers without an answer; those in `refused` become `Failed` instead.
    void forgetUnanswered(const std::set<RegisterRange> &refused);

    void clear();

private:
    std::map<RegisterRange, Entry> m_entries;
    uint32_t m_longest = 0; ///< bytes
};

} // namespace OrvCameraIo

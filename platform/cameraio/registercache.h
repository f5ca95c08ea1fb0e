// SPDX-License-Identifier: MIT
#pragma once

#include "port.h"

#include <map>
#include <set>
#include <vector>

namespace OrvCameraIo {

/// What was last transferred of each register, failures included.
///
/// Registers may overlap: a camera may answer part of a longer one with something else, so each is
/// known by itself. Only writing one outdates what overlaps it. Not thread safe.
class RegisterCache
{
public:
    struct Entry
    {
        Status status = Status::NoAnswer;
        std::vector<uint8_t> bytes;
        uint64_t moment = 0; ///< when the transfer began, on the logical clock
        Clock::time_point time;
    };

    /// Null when nothing is known.
    const Entry *find(const RegisterRange &range) const;

    void store(const RegisterRange &range, Entry entry);

    /// Forgets all that overlaps the range, itself too.
    void forgetOverlapping(const RegisterRange &range);

    /// Forgets what was not answered; what is in `refused` becomes `Failed` instead.
    void forgetUnanswered(const std::set<RegisterRange> &refused);

    void clear();

private:
    std::map<RegisterRange, Entry> m_entries;
    uint32_t m_longest = 0; ///< bytes
};

} // namespace OrvCameraIo

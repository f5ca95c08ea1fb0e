// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace OrvGigEVision {

/// Tells after which time an unanswered command is repeated, from the round trips so far.
class RepetitionTimer
{
public:
    using Duration = std::chrono::microseconds;

    /// The time to wait for an answer after the command was sent, and repeated so many times.
    Duration interval(int repetitions) const;

    /// A command was answered so long after it was sent first.
    void answered(Duration elapsed, int repetitions);

private:
    Duration m_smoothed{0}; ///< 0 as long as nothing was measured
    Duration m_deviation{0};
    Duration m_interval = std::chrono::milliseconds(100);
};

} // namespace OrvGigEVision

// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace OrvGigEVision {

/// Computes the time after which an unanswered command is repeated, from previous round trips.
class RepetitionTimer
{
public:
    using Duration = std::chrono::microseconds;

    /// The time to wait for an answer after the given number of repetitions.
    Duration interval(int repetitions) const;

    /// A command was answered that long after it was first sent.
    void answered(Duration elapsed, int repetitions);

private:
    Duration m_smoothed{0}; ///< 0 without a measurement
    Duration m_deviation{0};
    Duration m_interval = std::chrono::milliseconds(100);
};

} // namespace OrvGigEVision

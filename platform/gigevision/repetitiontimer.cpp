// SPDX-License-Identifier: MIT
#include "repetitiontimer.h"

#include <cameraio/limits.h>

#include <algorithm>

namespace OrvGigEVision {

namespace {

using Duration = RepetitionTimer::Duration;

constexpr Duration shortest = OrvCameraIo::Limits::shortestRepetition;
constexpr Duration longest = OrvCameraIo::Limits::readBudget / 2;

/// Single packets get lost; a longer silence means that the camera is overloaded.
constexpr int evenRepetitions = 4;

} // namespace

Duration RepetitionTimer::interval(int repetitions) const
{
    const int doublings = std::clamp(repetitions - evenRepetitions + 1, 0, 6);
    return std::min(m_interval * (1 << doublings), longest);
}

void RepetitionTimer::answered(Duration elapsed, int repetitions)
{
    if (repetitions > 0) {
        // It is not known which of the commands was answered. If it was the first one, the interval
        // was too short, and would stay so without a measurement.
        m_interval = std::clamp(elapsed * 3 / 2, m_interval, longest);
        return;
    }
    if (m_smoothed.count() == 0) {
        m_smoothed = elapsed;
        m_deviation = elapsed / 2;
    } else {
        const Duration difference = elapsed - m_smoothed;
        m_deviation += (std::chrono::abs(difference) - m_deviation) / 4;
        m_smoothed += difference / 8;
    }
    const Duration measured = std::max(m_smoothed * 2, m_smoothed + m_deviation * 4);
    m_interval = std::clamp(measured, shortest, longest);
}

} // namespace OrvGigEVision

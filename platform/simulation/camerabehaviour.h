// SPDX-License-Identifier: MIT
#pragma once

#include "simulation/cameramemory.h"

#include <array>
#include <random>

namespace OrvSimulation {

/// The activity of the simulated camera while time passes.
///
/// Reads the registers that the host has written, and writes those that a camera changes: completed
/// commands, measurements, white balance, the pulse generator. Deterministic for a seed and a
/// sequence of calls. Create it when the memory has its start values.
class CameraBehaviour
{
public:
    CameraBehaviour(CameraMemory &memory, std::uint32_t seed);

    /// Advances the time by \a seconds. With 0 only requests of the host since the last call are
    /// executed; a negative time counts as 0.
    void advance(double seconds);

private:
    using Bytes = std::vector<unsigned char>;
    using UserSet = std::vector<Bytes>;

    void runCommands();
    bool takeCommand(Registers::Address command);
    UserSet readSettings() const;
    void loadUserSet();
    void saveUserSet();

    void driftTemperature(double seconds);
    void balanceWhite(double seconds);
    void generatePulses(double seconds);
    double pulseTime(Registers::Address address) const;
    bool isPulseActive() const;
    void updateLines();
    void publish();

    CameraMemory &m_memory;
    std::mt19937 m_random;

    double m_upTime = 0;
    double m_temperature = 41.6;
    std::uint32_t m_triggerCount = 0;

    std::uint32_t m_balanceMode = 0;
    std::array<double, 3> m_coefficients{};
    std::array<double, 3> m_balanceTarget{};

    bool m_pulsesRunning = false;
    double m_pulsesTime = 0;
    std::uint32_t m_pulseCount = 0;

    std::vector<UserSet> m_userSets;
};

} // namespace OrvSimulation

// SPDX-License-Identifier: MIT
#include "simulation/camerabehaviour.h"

#include <algorithm>
#include <cmath>

namespace OrvSimulation {

using namespace Registers;

namespace {

constexpr std::uint32_t serviceKey = 0x4F525601;
constexpr std::uint32_t userSetCount = 3;

constexpr double workingTemperature = 42.0;
constexpr double temperatureTimeConstant = 120.0;
constexpr double temperatureNoise = 0.15;

enum BalanceWhite : std::uint32_t { BalanceOff, BalanceOnce, BalanceContinuous };
constexpr Address coefficientRegisters[] = {RedCoefficient, GreenCoefficient, BlueCoefficient};
constexpr double sceneCoefficients[] = {412, 256, 468};
constexpr double sceneSwing = 12;
constexpr double scenePeriod = 60;
constexpr double balanceTimeConstants[] = {2.0, 0.7, 0.25};

constexpr std::uint32_t triggerSourcePulseGenerator = 2;
constexpr double pulseGrids[] = {1e-6, 1e-5, 1e-4, 1e-3};

// One bit per line in LineStatusAll.
constexpr std::uint32_t firstOutputLine = 2;
enum OutputSource : std::uint32_t { OutputPulseGenerator = 5, OutputUser = 6 };

struct Block
{
    Address address;
    std::size_t size;
};

constexpr Block userSetBlocks[] = {
    {PixelFormat, 4},
    {Settings, SettingsSize},
    {FrameSettings, std::size_t{FrameCount} * FrameStride},
    {LookUpTables, LookUpTablesSize},
};

} // namespace

CameraBehaviour::CameraBehaviour(CameraMemory &memory, std::uint32_t seed)
    : m_memory(memory), m_random(seed), m_userSets(userSetCount, readSettings())
{
    publish();
    updateLines();
}

void CameraBehaviour::advance(double seconds)
{
    if (!(seconds > 0))
        seconds = 0;
    m_upTime += seconds;
    runCommands();
    driftTemperature(seconds);
    balanceWhite(seconds);
    generatePulses(seconds);
    updateLines();
    publish();
}

void CameraBehaviour::runCommands()
{
    if (takeCommand(TimestampLatch))
        m_memory.write64(TimestampLatchValue, static_cast<std::uint64_t>(m_upTime * 1e9));
    if (takeCommand(TriggerSoftware))
        ++m_triggerCount;
    if (takeCommand(UserSetLoad))
        loadUserSet();
    if (takeCommand(UserSetSave))
        saveUserSet();
    m_memory.write(ServiceUnlocked, m_memory.read(ServiceKey) == serviceKey ? 1 : 0);
}

bool CameraBehaviour::takeCommand(Address command)
{
    if (m_memory.read(command) == 0)
        return false;
    m_memory.write(command, 0);
    return true;
}

CameraBehaviour::UserSet CameraBehaviour::readSettings() const
{
    UserSet settings;
    for (const Block &block : userSetBlocks)
        settings.push_back(m_memory.readBlock(block.address, block.size));
    return settings;
}

void CameraBehaviour::loadUserSet()
{
    const std::uint32_t selected = m_memory.read(UserSetSelector);
    if (selected >= m_userSets.size())
        return;
    const UserSet &settings = m_userSets[selected];
    for (std::size_t i = 0; i < settings.size(); ++i)
        m_memory.writeBlock(userSetBlocks[i].address, settings[i]);
}

void CameraBehaviour::saveUserSet()
{
    const std::uint32_t selected = m_memory.read(UserSetSelector);
    if (selected > 0 && selected < m_userSets.size())
        m_userSets[selected] = readSettings();
}

// A random walk with a drift to the working temperature, in steps of at most a second.
void CameraBehaviour::driftTemperature(double seconds)
{
    std::normal_distribution<double> noise(0.0, temperatureNoise);
    while (seconds > 0) {
        const double step = std::min(seconds, 1.0);
        m_temperature += (workingTemperature - m_temperature) * step / temperatureTimeConstant;
        m_temperature += noise(m_random) * std::sqrt(step);
        seconds -= step;
    }
}

void CameraBehaviour::balanceWhite(double seconds)
{
    const std::uint32_t mode = m_memory.read(BalanceWhiteAuto);
    const bool modeChanged = mode != m_balanceMode;
    m_balanceMode = mode;
    if (mode != BalanceOnce && mode != BalanceContinuous)
        return;

    if (mode == BalanceContinuous || modeChanged) {
        const double swing = sceneSwing * std::sin(m_upTime * 2 * M_PI / scenePeriod);
        m_balanceTarget = {sceneCoefficients[0] + swing, sceneCoefficients[1],
                           sceneCoefficients[2] - swing};
    }

    const std::uint32_t speed = std::min(m_memory.read(AutoTrackingSpeed), 2U);
    const double part = 1 - std::exp(-seconds / balanceTimeConstants[speed]);
    bool arrived = true;
    for (std::size_t i = 0; i < m_coefficients.size(); ++i) {
        double &coefficient = m_coefficients[i];
        const std::uint32_t shown = m_memory.read(coefficientRegisters[i]);
        if (std::lround(coefficient) != static_cast<long>(shown)) // the host has set it
            coefficient = shown;
        coefficient += (m_balanceTarget[i] - coefficient) * part;
        m_memory.write(coefficientRegisters[i],
                       static_cast<std::uint32_t>(std::lround(coefficient)));
        arrived = arrived && std::abs(m_balanceTarget[i] - coefficient) < 0.5;
    }
    if (mode == BalanceOnce && arrived) {
        m_balanceMode = BalanceOff;
        m_memory.write(BalanceWhiteAuto, BalanceOff);
    }
}

void CameraBehaviour::generatePulses(double seconds)
{
    const bool enabled = m_memory.read(PulseGenEnable) != 0;
    if (enabled && !m_pulsesRunning) {
        m_pulsesTime = 0;
        m_pulseCount = 0;
    }
    m_pulsesRunning = enabled;
    if (!enabled)
        return;

    m_pulsesTime += seconds;
    const double period = pulseTime(PulseGenPeriod);
    const bool isBurst = m_memory.read(PulseGenMode) != 0;
    const std::uint32_t burst = m_memory.read(PulseGenNumPulses);
    const std::uint32_t before = m_pulseCount;
    // A pulse counts at the end of its period; the epsilon compensates for rounding.
    const double pulses = std::floor(m_pulsesTime / period + 1e-6);
    m_pulseCount = static_cast<std::uint32_t>(std::min(pulses, isBurst ? burst : 4294967295.0));
    m_pulseCount = std::max(m_pulseCount, before);
    if (isBurst && m_pulseCount >= burst) {
        m_pulsesRunning = false;
        m_memory.write(PulseGenEnable, 0);
    }
    if (m_memory.read(TriggerMode) != 0 &&
        m_memory.read(TriggerSource) == triggerSourcePulseGenerator)
        m_triggerCount += m_pulseCount - before;
}

// In seconds, at least one step of the grid and rounded up to the grid.
double CameraBehaviour::pulseTime(Address address) const
{
    const double grid = pulseGrids[std::min(m_memory.read(PulseGenGranularity), 3U)];
    const double microseconds = std::max(m_memory.read(address), 1U);
    return std::ceil(microseconds * 1e-6 / grid - 1e-9) * grid;
}

bool CameraBehaviour::isPulseActive() const
{
    return m_pulsesRunning &&
           std::fmod(m_pulsesTime, pulseTime(PulseGenPeriod)) < pulseTime(PulseGenWidth);
}

void CameraBehaviour::updateLines()
{
    const std::uint32_t control = m_memory.read(OutputControl);
    std::uint32_t levels = 0;
    for (std::uint32_t output = 0; output < 2; ++output) {
        const std::uint32_t bits = control >> (16 * output);
        const std::uint32_t source = (bits >> 4) & 0xF;
        const bool isActive = source == OutputUser
                                  ? m_memory.read(UserOutputValue + 4 * output) != 0
                                  : source == OutputPulseGenerator && isPulseActive();
        const bool isActiveLow = (bits & 1) != 0;
        if (isActive != isActiveLow)
            levels |= 1U << (firstOutputLine + output);
    }
    m_memory.write(LineStatusAll, levels);
}

void CameraBehaviour::publish()
{
    m_memory.write(CurrentTemperature, static_cast<std::uint32_t>(std::lround(m_temperature)));
    m_memory.writeFloat(DeviceTemperature, static_cast<float>(m_temperature));
    m_memory.write(UpTime, static_cast<std::uint32_t>(m_upTime));
    m_memory.write(TriggerCount, m_triggerCount);
    m_memory.write(PulseGenPulseCount, m_pulseCount);
}

} // namespace OrvSimulation

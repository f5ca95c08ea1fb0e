// SPDX-License-Identifier: MIT
#pragma once

#include "testcameramemory.h"
#include "testcameramoods.h"

#include <netinet/in.h>

/// Executes the commands for a TestCamera: reads, writes and refusals. Manages the control
/// privilege.
class TestCameraCommands
{
public:
    struct Answer
    {
        uint16_t status = 0;
        std::string data;
    };

    explicit TestCameraCommands(bool canConcatenate) : m_canConcatenate(canConcatenate) {}

    TestCameraMemory memory;

    void setBehaviour(const TestCameraBehaviour &behaviour);
    Answer execute(uint16_t kind, const std::string &data, const sockaddr_in &from);

    /// A controller without a port never releases control.
    void giveControl(uint32_t privilege, const sockaddr_in &controller = {});
    /// Removes a controller whose heartbeat is overdue. A command from `from` counts as a
    /// heartbeat.
    void checkHeartbeat(const sockaddr_in &from = {});

private:
    using Clock = TestCameraMemory::Clock;

    Answer readRegisters(const std::string &data, const sockaddr_in &from);
    Answer writeRegisters(const std::string &data, const sockaddr_in &from);
    Answer readMemory(const std::string &data, const sockaddr_in &from);
    Answer writeMemory(const std::string &data, const sockaddr_in &from);
    uint16_t writeWord(uint32_t address, uint32_t value, const sockaddr_in &from);
    uint16_t refusal(uint32_t address, bool isWriting, const sockaddr_in &from) const;
    bool isController(const sockaddr_in &from) const;

    const bool m_canConcatenate;
    TestCameraBehaviour m_behaviour;
    uint32_t m_privilege = 0;
    sockaddr_in m_controller{};
    Clock::time_point m_lastHeard;
};

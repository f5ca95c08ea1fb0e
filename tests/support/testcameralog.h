// SPDX-License-Identifier: MIT
#pragma once

#include "testgvcp.h"

#include <deque>
#include <vector>

/// Commands count when they arrive, also those that are then refused, ignored or lost.
struct TestCameraCounters
{
    unsigned packets = 0; ///< received
    unsigned discovery = 0;
    unsigned forceIp = 0; ///< for any camera
    unsigned packetResend = 0;
    unsigned readRegister = 0; ///< commands, not registers
    unsigned writeRegister = 0;
    unsigned readMemory = 0;
    unsigned writeMemory = 0;
    unsigned other = 0;
    unsigned heartbeats = 0;    ///< those of readRegister that ask for the control privilege only
    unsigned registersRead = 0; ///< by READREG
    unsigned registersWritten = 0;
    unsigned bytesRead = 0; ///< by READMEM
    unsigned bytesWritten = 0;
    unsigned repetitions = 0;  ///< of one of the last 16 commands
    unsigned lostRequests = 0; ///< by request loss and silence
    unsigned lostAnswers = 0;
    unsigned refused = 0; ///< answered with an error
    unsigned sent = 0;    ///< packets, PENDING_ACKs and faulty ones included

    /// All reads and writes but the heartbeats.
    unsigned transfers() const
    {
        return readRegister + writeRegister + readMemory + writeMemory - heartbeats;
    }
    std::string text() const; ///< "name value" lines, those with 0 left out
};
/// A read or write that arrived; a concatenated command makes several with one `packet`.
struct TestCameraAccess
{
    TestGvcp::Kind kind;
    uint32_t address;
    uint32_t size; ///< bytes
    unsigned packet;
    bool isLost;

    bool isRead() const { return !TestGvcp::isWrite(kind); }
};
/// Counts and remembers the commands that a TestCamera gets.
class TestCameraLog
{
public:
    TestCameraCounters counters;
    std::vector<TestCameraAccess> accesses;

    /// `client` is the address and port in any form.
    void add(const std::string &client, uint16_t kind, uint16_t id, const std::string &data,
             bool isLost);

private:
    void addRegisters(uint16_t kind, const std::string &data, bool isLost);
    void addMemory(uint16_t kind, const std::string &data, bool isLost);

    std::deque<std::string> m_lastCommands;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "testgvcp.h"

#include <deque>
#include <vector>

/// Counters. Commands count on arrival, even if they are then refused, ignored or lost.
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
    unsigned heartbeats = 0;    ///< READREG commands of the control privilege only
    unsigned registersRead = 0; ///< by READREG
    unsigned registersWritten = 0;
    unsigned bytesRead = 0; ///< by READMEM
    unsigned bytesWritten = 0;
    unsigned repetitions = 0;  ///< repeats one of the last 16 commands
    unsigned lostRequests = 0; ///< dropped by request loss and silence
    unsigned lostAnswers = 0;
    unsigned refused = 0; ///< answers with an error
    unsigned sent = 0;    ///< packets, including PENDING_ACK and faulty ones

    /// All reads and writes except heartbeats.
    unsigned transfers() const
    {
        return readRegister + writeRegister + readMemory + writeMemory - heartbeats;
    }
    std::string text() const; ///< "name value" lines of all counters but those at 0
};
/// A read or write that arrived. A concatenated command consists of several with the same `packet`.
struct TestCameraAccess
{
    TestGvcp::Kind kind;
    uint32_t address;
    uint32_t size; ///< bytes
    unsigned packet;
    bool isLost;

    bool isRead() const { return !TestGvcp::isWrite(kind); }
};
/// Counts and records the commands that a TestCamera receives.
class TestCameraLog
{
public:
    TestCameraCounters counters;
    std::vector<TestCameraAccess> accesses;

    /// `client` is address and port, in any format.
    void add(const std::string &client, uint16_t kind, uint16_t id, const std::string &data,
             bool isLost);

private:
    void addRegisters(uint16_t kind, const std::string &data, bool isLost);
    void addMemory(uint16_t kind, const std::string &data, bool isLost);

    std::deque<std::string> m_lastCommands;
};

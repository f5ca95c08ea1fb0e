// SPDX-License-Identifier: MIT
#include "testcameralog.h"

#include <algorithm>

using namespace TestGvcp;

std::string TestCameraCounters::text() const
{
    std::string result;
    const auto add = [&result](const char *name, unsigned value) {
        if (value > 0)
            result += std::string(name) + ' ' + std::to_string(value) + '\n';
    };
    add("packets", packets);
    add("discovery", discovery);
    add("forceIp", forceIp);
    add("packetResend", packetResend);
    add("readRegister", readRegister);
    add("writeRegister", writeRegister);
    add("readMemory", readMemory);
    add("writeMemory", writeMemory);
    add("other", other);
    add("heartbeats", heartbeats);
    add("registersRead", registersRead);
    add("registersWritten", registersWritten);
    add("bytesRead", bytesRead);
    add("bytesWritten", bytesWritten);
    add("repetitions", repetitions);
    add("lostRequests", lostRequests);
    add("lostAnswers", lostAnswers);
    add("refused", refused);
    add("sent", sent);
    return result;
}

void TestCameraLog::add(const std::string &client, uint16_t kind, uint16_t id,
                        const std::string &data, bool isLost)
{
    const std::string command = client + std::to_string(kind) + ' ' + std::to_string(id);
    if (std::find(m_lastCommands.begin(), m_lastCommands.end(), command) != m_lastCommands.end())
        ++counters.repetitions;
    m_lastCommands.push_back(command);
    if (m_lastCommands.size() > 16)
        m_lastCommands.pop_front();
    counters.lostRequests += isLost ? 1 : 0;

    switch (kind) {
    case Discovery:
        ++counters.discovery;
        break;
    case ForceIp:
        ++counters.forceIp;
        break;
    case PacketResend:
        ++counters.packetResend;
        break;
    case ReadRegister:
    case WriteRegister:
        addRegisters(kind, data, isLost);
        break;
    case ReadMemory:
    case WriteMemory:
        addMemory(kind, data, isLost);
        break;
    default:
        ++counters.other;
    }
}

void TestCameraLog::addRegisters(uint16_t kind, const std::string &data, bool isLost)
{
    ++(isWrite(kind) ? counters.writeRegister : counters.readRegister);
    if (kind == ReadRegister && data.size() == 4 && number(data, 0) == ControlPrivilege) {
        ++counters.heartbeats;
        return;
    }
    const std::size_t step = isWrite(kind) ? 8 : 4;
    for (std::size_t i = 0; i + step <= data.size(); i += step) {
        ++(isWrite(kind) ? counters.registersWritten : counters.registersRead);
        accesses.push_back({static_cast<Kind>(kind), number(data, i), 4, counters.packets, isLost});
    }
}

void TestCameraLog::addMemory(uint16_t kind, const std::string &data, bool isLost)
{
    ++(isWrite(kind) ? counters.writeMemory : counters.readMemory);
    if (data.size() < 8)
        return;
    const auto size = isWrite(kind) ? static_cast<uint32_t>(data.size()) - 4 : number(data, 6, 2);
    (isWrite(kind) ? counters.bytesWritten : counters.bytesRead) += size;
    accesses.push_back({static_cast<Kind>(kind), number(data, 0), size, counters.packets, isLost});
}

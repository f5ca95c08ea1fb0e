// SPDX-License-Identifier: MIT
#include "testcameracommands.h"

#include "testgvcp.h"

#include <algorithm>

using namespace TestGvcp;

namespace {

constexpr uint32_t largestData = 540;   // of a command or an answer, in bytes
constexpr uint32_t largestMemory = 536; // of READMEM and WRITEMEM

bool isReadOnly(uint32_t address)
{
    for (uint32_t writable :
         {IpConfiguration, PersistentIp, PersistentNetmask, PersistentGateway}) {
        if (address == writable)
            return false;
    }
    return address < ReadOnlyEnd && (address < UserName || address >= DiscoveryEnd);
}

} // namespace

void TestCameraCommands::setBehaviour(const TestCameraBehaviour &behaviour)
{
    m_behaviour = behaviour;
}

TestCameraCommands::Answer TestCameraCommands::execute(uint16_t kind, const std::string &data,
                                                       const sockaddr_in &from)
{
    if (isTransfer(kind) && m_behaviour.refuseAll != Success)
        return {m_behaviour.refuseAll, {}};
    if (isTransfer(kind) && m_behaviour.busy > 0) {
        --m_behaviour.busy;
        return {Busy, {}};
    }
    switch (kind) {
    case Discovery:
        return {Success, memory.bytes(0, DiscoveryEnd).value_or(std::string())};
    case ForceIp:
        return {m_behaviour.forceIp == TestCameraBehaviour::ForceIp::Refused ? AccessDenied
                                                                             : Success,
                {}};
    case ReadRegister:
        return readRegisters(data, from);
    case WriteRegister:
        return writeRegisters(data, from);
    case ReadMemory:
        return readMemory(data, from);
    case WriteMemory:
        return writeMemory(data, from);
    default:
        return {NotImplemented, {}};
    }
}

TestCameraCommands::Answer TestCameraCommands::readRegisters(const std::string &data,
                                                             const sockaddr_in &from)
{
    const std::size_t size = data.size();
    if (size == 0 || size % 4 != 0 || size > largestData || (size > 4 && !m_canConcatenate))
        return {InvalidParameter, {}};
    if (size > 4 && m_behaviour.refuseBatches != Success)
        return {m_behaviour.refuseBatches, {}};
    Answer answer;
    for (std::size_t i = 0; i < size; i += 4) {
        const uint32_t address = number(data, i);
        answer.status = refusal(address, false, from);
        if (answer.status != Success)
            break; // the answer contains the registers before this one
        answer.data += bytesOf(memory.word(address).value_or(0));
    }
    return answer;
}

TestCameraCommands::Answer TestCameraCommands::writeRegisters(const std::string &data,
                                                              const sockaddr_in &from)
{
    const std::size_t size = data.size();
    if (size == 0 || size % 8 != 0 || size > largestData || (size > 8 && !m_canConcatenate))
        return {InvalidParameter, bytesOf(0)};
    if (size > 8 && m_behaviour.refuseBatches != Success)
        return {m_behaviour.refuseBatches, bytesOf(0)};
    Answer answer;
    uint32_t done = 0;
    for (; answer.status == Success && done < size / 8; done += answer.status == Success ? 1 : 0)
        answer.status = writeWord(number(data, done * 8), number(data, done * 8 + 4), from);
    answer.data = bytesOf(done);
    return answer;
}

TestCameraCommands::Answer TestCameraCommands::readMemory(const std::string &data,
                                                          const sockaddr_in &from)
{
    if (data.size() != 8)
        return {InvalidHeader, {}};
    const uint32_t address = number(data, 0);
    const uint32_t size = number(data, 6, 2);
    if (size == 0 || size % 4 != 0 || size > largestMemory ||
        (size > m_behaviour.largestRead && !memory.isBlock(address)))
        return {InvalidParameter, {}};
    for (uint32_t i = 0; i < size; i += 4) {
        const uint16_t status = refusal(address + i, false, from);
        if (status != Success)
            return {status, {}};
    }
    return {Success, bytesOf(address) + memory.bytes(address, size).value_or(std::string())};
}

TestCameraCommands::Answer TestCameraCommands::writeMemory(const std::string &data,
                                                           const sockaddr_in &from)
{
    if (data.size() < 8 || data.size() % 4 != 0 || data.size() - 4 > largestMemory)
        return {InvalidParameter, bytesOf(0)};
    const uint32_t address = number(data, 0);
    Answer answer;
    uint32_t done = 0;
    for (; done < data.size() - 4 && answer.status == Success; done += 4) {
        answer.status = refusal(address + done, true, from);
        if (answer.status != Success)
            break;
        if (address + done == ControlPrivilege || address + done == HeartbeatTimeout)
            answer.status = writeWord(address + done, number(data, 4 + done), from);
        else
            memory.setBytes(address + done, data.substr(4 + done, 4));
    }
    answer.data = bytesOf(done);
    return answer;
}

uint16_t TestCameraCommands::refusal(uint32_t address, bool isWriting,
                                     const sockaddr_in &from) const
{
    if (address % 4 != 0)
        return BadAlignment;
    const bool isOthers = m_privilege != 0 && !isController(from);
    if (isOthers && (isWriting || m_privilege == 1))
        return AccessDenied;
    if (isWriting && m_privilege == 0 && address != ControlPrivilege)
        return AccessDenied;
    for (const auto &range : m_behaviour.refusals) {
        if (range.first <= address && address <= range.last &&
            (isWriting ? range.writes : range.reads))
            return range.status;
    }
    if (!memory.has(address))
        return InvalidAddress;
    return isWriting && (isReadOnly(address) || memory.isBlock(address)) ? WriteProtect : Success;
}

uint16_t TestCameraCommands::writeWord(uint32_t address, uint32_t value, const sockaddr_in &from)
{
    const uint16_t status = refusal(address, true, from);
    if (status != Success)
        return status;
    if (address != ControlPrivilege) {
        memory.setWord(address, address == HeartbeatTimeout ? std::max(value, 500u) : value);
        return Success;
    }
    if (value > 3)
        return InvalidParameter;
    giveControl((value & 1) != 0 ? 1 : value, from);
    return Success;
}

void TestCameraCommands::giveControl(uint32_t privilege, const sockaddr_in &controller)
{
    m_privilege = privilege;
    m_controller = controller;
    m_lastHeard = Clock::now();
    memory.setWord(ControlPrivilege, privilege);
}

bool TestCameraCommands::isController(const sockaddr_in &from) const
{
    return m_privilege != 0 && from.sin_addr.s_addr == m_controller.sin_addr.s_addr &&
           from.sin_port == m_controller.sin_port;
}

void TestCameraCommands::checkHeartbeat(const sockaddr_in &from)
{
    const bool isEndless =
        m_controller.sin_port == 0 || (memory.word(Configuration).value_or(0) & 1) != 0;
    const std::chrono::milliseconds timeout(memory.word(HeartbeatTimeout).value_or(0));
    if (m_privilege != 0 && !isEndless && Clock::now() - m_lastHeard > timeout)
        giveControl(0);
    if (isController(from))
        m_lastHeard = Clock::now();
}

// SPDX-License-Identifier: MIT
#include "gvport.h"

#include "gvcontrol.h"
#include "registermemory.h"

#include <cameraio/limits.h>

namespace OrvGigEVision {

using OrvCameraIo::Status;
namespace Limits = OrvCameraIo::Limits;

GvPort::GvPort(const NetworkAdapter &adapter, std::string cameraId, uint32_t camera, OpenMode mode)
    : m_adapterName(adapter.name)
    , m_cameraId(std::move(cameraId))
    , m_mode(mode)
    , m_channel(adapter, camera)
{
}

GvPort::~GvPort()
{
    giveControlBack();
}

Status GvPort::connect()
{
    const Status status = takeControl();
    if (status != Status::Done)
        return status;
    return m_reader.readCapabilities() ? Status::Done : Status::NoAnswer;
}

Status GvPort::takeControl()
{
    const auto present = m_channel.readRegisters({Gvcp::ControlPrivilege});
    if (!isAnswer(present.status) || present.status == Status::AccessDenied)
        return present.status; // exclusive control also refuses reads
    if (m_mode == OpenMode::Monitor)
        return Status::Done;
    const bool isTaken = present.isDone() && (present.values.front() & Gvcp::controlPrivilegeMask);
    if (isTaken && !m_hasControl)
        return Status::AccessDenied;

    const auto taken = m_channel.writeRegister(Gvcp::ControlPrivilege, Gvcp::controlPrivilege);
    m_hasControl = taken.isDone();
    if (!m_hasControl)
        return taken.status;
    // A camera with a read-only time-out uses its own.
    const auto heartbeat = m_channel.writeRegister(
        Gvcp::HeartbeatTimeout, static_cast<uint32_t>(Limits::heartbeat.count()));
    return isAnswer(heartbeat.status) ? Status::Done : heartbeat.status;
}

void GvPort::giveControlBack()
{
    if (!m_hasControl)
        return;
    m_hasControl = false;
    m_channel.writeRegisterBlindly(Gvcp::ControlPrivilege, 0);
}

Status GvPort::write(uint64_t address, const std::vector<uint8_t> &bytes)
{
    if (bytes.empty())
        return Status::Done;
    if (bytes.size() > static_cast<std::size_t>(Limits::registerSize))
        return Status::InvalidParameter;
    const OrvCameraIo::RegisterRange range{address, static_cast<uint32_t>(bytes.size())};
    if (address > 0xFFFFFFFF || RegisterMemory::wordsOf(range).end > uint64_t(1) << 32)
        return Status::InvalidAddress;

    const auto start = static_cast<uint32_t>(address);
    const bool isWhole = range.address % 4 == 0 && range.size % 4 == 0;
    const bool isNumber = ReadPlan::isWord(range) && m_reader.isWordNumber();
    if (isNumber || (isWhole && !m_reader.canWriteMemory()))
        return writeWords(start, bytes);
    return RegisterMemory::write(m_channel, start, bytes);
}

Status GvPort::writeWords(uint32_t address, const std::vector<uint8_t> &bytes)
{
    const std::size_t most = m_reader.canConcatenate() ? Gvcp::maxRegisters / 2 : 1;
    std::vector<Gvcp::RegisterValue> values;
    for (std::size_t i = 0; i < bytes.size(); i += 4) {
        uint32_t value = 0;
        for (std::size_t j = i; j < i + 4; ++j)
            value = value << 8 | bytes[j];
        values.push_back({address + static_cast<uint32_t>(i), value});
        if (values.size() < most && i + 4 < bytes.size())
            continue;
        const Status status = m_channel.writeRegisters(values).status;
        if (status != Status::Done)
            return status;
        values.clear();
    }
    return Status::Done;
}

OrvCameraIo::Port::Presence GvPort::probe()
{
    // After such a long silence the camera has released control, and another program may have it.
    const bool wasForgotten =
        m_mode == OpenMode::Control && Clock::now() - m_channel.lastAnswer() > Limits::heartbeat;
    const auto reply = m_channel.ask(Gvcp::ControlPrivilege, Limits::keepAlivePeriod);
    if (!isAnswer(reply.status))
        return reply.wasPending ? Presence::Answers : Presence::Silent;
    if (wasForgotten || reply.status == Status::AccessDenied)
        return Presence::Forgotten;
    if (m_mode == OpenMode::Monitor || !reply.isDone())
        return Presence::Answers;
    const bool isTaken = (reply.values.front() & Gvcp::controlPrivilegeMask) != 0;
    return isTaken && m_hasControl ? Presence::Answers : Presence::Forgotten;
}

bool GvPort::reopen(const std::function<bool()> &isCancelled)
{
    const auto adapter = adapterCalled(m_adapterName);
    if (!adapter)
        return false;
    const auto camera = findCamera(*adapter, m_cameraId, searchTime, isCancelled);
    if (!camera || !camera->isReachable || (isCancelled && isCancelled()))
        return false;
    m_channel.setCamera(*adapter, camera->identity.ip);
    if (connect() != Status::Done)
        return false;
    if (hasDescription(m_channel, camera->identity, m_description, isCancelled))
        return true;
    giveControlBack();
    return false;
}

std::optional<NetworkAdapter> adapterCalled(const std::string &name)
{
    for (NetworkAdapter &adapter : networkAdapters()) {
        if (adapter.name == name)
            return std::move(adapter);
    }
    return std::nullopt;
}

} // namespace OrvGigEVision

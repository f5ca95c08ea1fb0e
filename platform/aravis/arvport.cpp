// SPDX-License-Identifier: MIT
#include "arvport.h"

#include "arvsupport.h"

#include <cameraio/limits.h>

#include <arv.h>

using OrvCameraIo::PortHints;
using OrvCameraIo::ReadTransfer;
using OrvCameraIo::Status;
namespace Limits = OrvCameraIo::Limits;

namespace OrvAravis {

namespace {

/// A register of every camera: the version of its protocol.
constexpr uint64_t versionRegister = 0;

/// A register of GigE Vision cameras. It is cleared when the camera restarts.
constexpr uint64_t controlPrivilegeRegister = 0x0a00;
constexpr uint8_t controlPrivilegeMask = 0x3;

using Flag = std::shared_ptr<std::atomic<bool>>;

void controlLost(ArvDevice *, void *data)
{
    **static_cast<Flag *>(data) = true;
}

void destroyFlag(void *data, GClosure *)
{
    delete static_cast<Flag *>(data);
}

} // namespace

ArvPort::ArvPort(std::shared_ptr<ArvDevice> device, Reopen reopen) : m_reopen(std::move(reopen))
{
    quieten();
    attach(std::move(device));
}

ArvPort::~ArvPort()
{
    detach();
}

void ArvPort::attach(std::shared_ptr<ArvDevice> device)
{
    m_device = std::move(device);
    m_isSilent = false;
    m_hasControl = ARV_IS_GV_DEVICE(m_device.get()) && isController(m_device.get());
    // Emitted on a thread of the device, possibly during the destruction of this object.
    m_isControlLost = std::make_shared<std::atomic<bool>>(false);
    m_signal = g_signal_connect_data(m_device.get(), "control-lost", G_CALLBACK(controlLost),
                                     new Flag(m_isControlLost), destroyFlag, GConnectFlags(0));
    auto thread = std::make_unique<DeviceThread>(m_device);
    const std::lock_guard<std::mutex> lock(m_mutex); // released before the previous thread ends
    m_thread.swap(thread);
    if (m_isInterrupted)
        m_thread->interrupt();
}

void ArvPort::detach()
{
    g_signal_handler_disconnect(m_device.get(), m_signal);
    m_device.reset();
    if (*m_isControlLost || m_isSilent)
        m_thread->abandon();
}

void ArvPort::setHints(const PortHints &hints)
{
    m_isWordNumber = hints.isWordNumber;
}

Status ArvPort::carryOut(Transfer &transfer, std::chrono::milliseconds budget)
{
    transfer.isNumber = m_isWordNumber;
    const Status status = m_thread->carryOut(transfer, budget);
    m_isSilent = !isAnswer(status);
    return status;
}

void ArvPort::read(std::vector<ReadTransfer> &batch)
{
    for (ReadTransfer &wanted : batch) {
        Transfer transfer{Transfer::Kind::Read, wanted.range.address, {}, false};
        transfer.bytes.resize(wanted.range.size);
        wanted.status = carryOut(transfer, Limits::readBudget);
        wanted.bytes = std::move(transfer.bytes);
        if (m_isSilent)
            return;
    }
}

Status ArvPort::write(uint64_t address, const std::vector<uint8_t> &bytes)
{
    Transfer transfer{Transfer::Kind::Write, address, bytes, false};
    return carryOut(transfer, Limits::writeBudget);
}

OrvCameraIo::Port::Presence ArvPort::probe()
{
    if (*m_isControlLost || (m_hasControl && !isController(m_device.get())))
        return Presence::Forgotten;
    // Aravis monitors the connection itself, so a transfer is needed only after a failed one.
    if (!m_isSilent)
        return Presence::Answers;
    const uint64_t address = m_hasControl ? controlPrivilegeRegister : versionRegister;
    Transfer question{Transfer::Kind::Read, address, std::vector<uint8_t>(4), false};
    const Status status = carryOut(question, Limits::keepAlivePeriod);
    if (m_isSilent)
        return Presence::Silent;
    const bool isForgotten = m_hasControl && status == Status::Done &&
                             (question.bytes.back() & controlPrivilegeMask) == 0;
    return isForgotten ? Presence::Forgotten : Presence::Answers;
}

void ArvPort::interrupt()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isInterrupted = true;
    m_thread->interrupt();
}

bool ArvPort::reopen(const std::function<bool()> &isCancelled)
{
    if (isCancelled && isCancelled())
        return false;
    std::shared_ptr<ArvDevice> device = m_reopen ? m_reopen() : nullptr;
    if (!device)
        return false;
    detach();
    attach(std::move(device));
    return true;
}

} // namespace OrvAravis

// SPDX-License-Identifier: MIT
#include "arvport.h"

#include "arvsupport.h"

#include <arv.h>

#include <cstring>
#include <thread>

using OrvCameraIo::PortHints;
using OrvCameraIo::ReadTransfer;
using OrvCameraIo::Status;

namespace OrvAravis {

namespace {

/// A register that every camera has: the version of its protocol.
constexpr uint64_t versionRegister = 0;

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
    // Emitted on a thread of the device, possibly while this object goes.
    m_isControlLost = std::make_shared<std::atomic<bool>>(false);
    m_signal = g_signal_connect_data(m_device.get(), "control-lost", G_CALLBACK(controlLost),
                                     new Flag(m_isControlLost), destroyFlag, GConnectFlags(0));
}

void ArvPort::detach()
{
    g_signal_handler_disconnect(m_device.get(), m_signal);
    // Aravis says goodbye to a camera, and waits for seconds when that does not answer.
    if (*m_isControlLost || m_isSilent)
        std::thread([device = std::move(m_device)] {}).detach();
    m_device.reset();
}

void ArvPort::setHints(const PortHints &hints)
{
    m_isWordNumber = hints.isWordNumber;
}

Status ArvPort::note(GError *error)
{
    const Status status = takeStatus(error);
    m_isSilent = !isAnswer(status);
    return status;
}

void ArvPort::read(std::vector<ReadTransfer> &batch)
{
    for (ReadTransfer &transfer : batch)
        read(transfer);
}

void ArvPort::read(ReadTransfer &transfer)
{
    const auto &[address, size] = transfer.range;
    transfer.bytes.resize(size);
    GError *error = nullptr;
    guint32 number = 0;
    if (m_isWordNumber && size == sizeof number) {
        arv_device_read_register(m_device.get(), address, &number, &error);
        number = GUINT32_TO_BE(number);
        std::memcpy(transfer.bytes.data(), &number, sizeof number);
    } else {
        arv_device_read_memory(m_device.get(), address, size, transfer.bytes.data(), &error);
    }
    transfer.status = note(error);
}

Status ArvPort::write(uint64_t address, const std::vector<uint8_t> &bytes)
{
    GError *error = nullptr;
    guint32 number = 0;
    if (m_isWordNumber && bytes.size() == sizeof number) {
        std::memcpy(&number, bytes.data(), sizeof number);
        arv_device_write_register(m_device.get(), address, GUINT32_FROM_BE(number), &error);
    } else {
        // Aravis only reads from the buffer; its signature does not say so.
        arv_device_write_memory(m_device.get(), address, static_cast<guint32>(bytes.size()),
                                const_cast<uint8_t *>(bytes.data()), &error);
    }
    return note(error);
}

OrvCameraIo::Port::Presence ArvPort::probe()
{
    if (*m_isControlLost)
        return Presence::Forgotten;
    // Aravis asks by itself whether the camera is there; only what has just failed is worth a
    // transfer.
    if (!m_isSilent)
        return Presence::Answers;
    ReadTransfer version{{versionRegister, sizeof(guint32)}, Status::NoAnswer, {}};
    read(version);
    return m_isSilent ? Presence::Silent : Presence::Answers;
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

// SPDX-License-Identifier: MIT
#include "devicethread.h"

#include "arvsupport.h"

#include <arv.h>

#include <condition_variable>
#include <cstring>
#include <mutex>

using OrvCameraIo::Clock;
using OrvCameraIo::Status;

namespace OrvAravis {

namespace {

Status readNumber(ArvDevice *device, Transfer &transfer)
{
    GError *error = nullptr;
    guint32 number = 0;
    arv_device_read_register(device, transfer.address, &number, &error);
    number = GUINT32_TO_BE(number);
    std::memcpy(transfer.bytes.data(), &number, sizeof number);
    return takeStatus(error);
}

Status writeNumber(ArvDevice *device, const Transfer &transfer)
{
    GError *error = nullptr;
    guint32 number = 0;
    std::memcpy(&number, transfer.bytes.data(), sizeof number);
    arv_device_write_register(device, transfer.address, GUINT32_FROM_BE(number), &error);
    return takeStatus(error);
}

/// Blocks until Aravis's time-out.
Status perform(ArvDevice *device, Transfer &transfer)
{
    const bool isRead = transfer.kind == Transfer::Kind::Read;
    if (transfer.isNumber && transfer.bytes.size() == sizeof(guint32))
        return isRead ? readNumber(device, transfer) : writeNumber(device, transfer);
    const auto size = static_cast<guint32>(transfer.bytes.size());
    GError *error = nullptr;
    if (isRead)
        arv_device_read_memory(device, transfer.address, size, transfer.bytes.data(), &error);
    else
        arv_device_write_memory(device, transfer.address, size, transfer.bytes.data(), &error);
    return takeStatus(error);
}

} // namespace

struct DeviceThread::State
{
    std::shared_ptr<ArvDevice> device; ///< used by the thread

    std::mutex mutex; ///< guards the members below
    std::condition_variable changed;
    Transfer transfer;
    Status status = Status::NoAnswer;
    bool isBusy = false; ///< the thread is using `transfer`
    bool isInterrupted = false;
    bool isStopping = false;
    bool isAbandoned = false;
};

DeviceThread::DeviceThread(std::shared_ptr<ArvDevice> device) : m_state(std::make_shared<State>())
{
    m_state->device = std::move(device);
    m_thread = std::thread([state = m_state] { run(state); });
}

DeviceThread::~DeviceThread()
{
    std::unique_lock<std::mutex> lock(m_state->mutex);
    const bool isWaitedFor = !m_state->isBusy && !m_state->isAbandoned;
    m_state->isStopping = true;
    lock.unlock();
    m_state->changed.notify_all();
    if (!isWaitedFor)
        m_thread.detach();
    else
        m_thread.join();
}

void DeviceThread::run(const std::shared_ptr<State> &state)
{
    std::unique_lock<std::mutex> lock(state->mutex);
    for (;;) {
        state->changed.wait(lock, [&] { return state->isBusy || state->isStopping; });
        if (!state->isBusy)
            break;
        lock.unlock();
        const Status status = perform(state->device.get(), state->transfer);
        lock.lock();
        state->status = status;
        state->isBusy = false;
        state->changed.notify_all();
    }
    lock.unlock();
    state->device.reset();
}

void DeviceThread::abandon()
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    m_state->isAbandoned = true;
}

Status DeviceThread::carryOut(Transfer &transfer, std::chrono::milliseconds budget)
{
    const auto end = Clock::now() + budget;
    std::unique_lock<std::mutex> lock(m_state->mutex);
    const auto isFree = [this] { return !m_state->isBusy || m_state->isInterrupted; };
    m_state->changed.wait_until(lock, end, isFree);
    if (m_state->isBusy || m_state->isInterrupted)
        return Status::NoAnswer;

    m_state->transfer = transfer;
    m_state->isBusy = true;
    m_state->changed.notify_all();
    m_state->changed.wait_until(lock, end, isFree);
    if (m_state->isBusy)
        return Status::NoAnswer;
    transfer.bytes = m_state->transfer.bytes;
    return m_state->status;
}

void DeviceThread::interrupt()
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    m_state->isInterrupted = true;
    m_state->changed.notify_all();
}

} // namespace OrvAravis

// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/port.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <thread>
#include <vector>

typedef struct _ArvDevice ArvDevice;

namespace OrvAravis {

/// A transfer between this program and a device.
struct Transfer
{
    enum class Kind { Read, Write };

    Kind kind = Kind::Read;
    uint64_t address = 0;
    std::vector<uint8_t> bytes; ///< of a read as many as are wanted
    bool isNumber = false;      ///< four bytes as a number, most significant first
};

/// A device of Aravis whose transfers run on a thread of their own, since Aravis's time-outs are
/// longer than callers may be kept waiting.
class DeviceThread
{
public:
    explicit DeviceThread(std::shared_ptr<ArvDevice> device);

    /// Gives the device back. Waits for that, unless a transfer is under way or the device was
    /// abandoned.
    ~DeviceThread();
    DeviceThread(const DeviceThread &) = delete;
    DeviceThread &operator=(const DeviceThread &) = delete;

    /// Waits until the transfer is done, for at most so long; then its status is `NoAnswer`, and so
    /// are those of the next ones until it has ended.
    OrvCameraIo::Status carryOut(Transfer &transfer, std::chrono::milliseconds budget);

    /// Ends the waiting, for good. May be called on any thread.
    void interrupt();

    /// Has the destructor not wait: Aravis says goodbye to a camera, which takes seconds when that
    /// does not answer.
    void abandon();

private:
    struct State;

    static void run(const std::shared_ptr<State> &state);

    const std::shared_ptr<State> m_state;
    std::thread m_thread;
};

} // namespace OrvAravis

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
    std::vector<uint8_t> bytes; ///< for a read, the number of bytes to read
    bool isNumber = false;      ///< four bytes that are a number, most significant first
};

/// A device of Aravis whose transfers run on a separate thread, because Aravis's time-outs are
/// longer than callers may be blocked.
class DeviceThread
{
public:
    explicit DeviceThread(std::shared_ptr<ArvDevice> device);

    /// Releases the device. Blocks until that is done, unless a transfer is running or the device
    /// was abandoned.
    ~DeviceThread();
    DeviceThread(const DeviceThread &) = delete;
    DeviceThread &operator=(const DeviceThread &) = delete;

    /// Blocks until the transfer is done, but no longer than the budget. After a time-out its
    /// status is `NoAnswer`, and later transfers fail in the same way until it has ended.
    OrvCameraIo::Status carryOut(Transfer &transfer, std::chrono::milliseconds budget);

    /// Ends the present wait and all later ones. Thread-safe.
    void interrupt();

    /// The destructor will not block: Aravis closes the connection to a camera, which takes seconds
    /// when the camera does not answer.
    void abandon();

private:
    struct State;

    static void run(const std::shared_ptr<State> &state);

    const std::shared_ptr<State> m_state;
    std::thread m_thread;
};

} // namespace OrvAravis

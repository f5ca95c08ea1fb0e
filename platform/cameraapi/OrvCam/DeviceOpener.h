// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Codes.h>
#include <OrvCam/Export.h>

#include <cstdint>
#include <functional>
#include <string>
#include <thread>

namespace OrvCam {

class Device;

/// What a camera record can do when its camera can be opened beside the thread that uses the
/// system. Ask a `DeviceInfo` for it with `dynamic_cast`; for one that lacks it there is
/// `OrvCam_CreateDevice`.
class ORVCAMERAAPI_EXPORT DeviceOpener
{
public:
    struct Request
    {
        int32_t accessMode = AccessControl;

        /// The thread that runs the default GLib main context, and is going to use the device.
        std::thread::id homeThread = std::this_thread::get_id();

        /// Told how much of the camera's description has come; not at all when it is known already.
        /// May be empty.
        std::function<void(int percent)> report;

        /// Asked again and again; opening ends soon when it answers true. May be empty.
        std::function<bool()> isCancelled;
    };

    struct Result
    {
        Device *device = nullptr; ///< the caller's, to be released; null on failure
        int32_t error = Success;
        std::string reason; ///< why it failed, in English, plain text; may be empty
    };

    /// Opens the camera and waits for it; throws nothing. May be called on any thread, the
    /// functions of the request are called on that one. Keeps alive what it needs of the system.
    using Open = std::function<Result(const Request &)>;

    /// To be called on the thread that uses the system. Never empty.
    virtual Open opener() = 0;

protected:
    virtual ~DeviceOpener() = default;
};

} // namespace OrvCam

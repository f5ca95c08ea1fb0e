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

/// Implemented by camera records whose camera can be opened on a thread other than the one that
/// uses the system. Query a `DeviceInfo` for it with `dynamic_cast`; where it is missing, use
/// `OrvCam_CreateDevice`.
class ORVCAMERAAPI_EXPORT DeviceOpener
{
public:
    struct Request
    {
        int32_t accessMode = AccessControl;

        /// The thread that runs the default GLib main context and will use the device.
        std::thread::id homeThread = std::this_thread::get_id();

        /// Receives the progress of downloading the camera's description. Not called when the
        /// description is already cached. May be empty.
        std::function<void(int percent)> report;

        /// Polled while the camera is being opened; true cancels. May be empty.
        std::function<bool()> isCancelled;
    };

    struct Result
    {
        Device *device = nullptr; ///< owned by the caller, which releases it; null on failure
        int32_t error = Success;
        std::string reason; ///< the reason of the failure, plain English text; may be empty
    };

    /// Opens the camera and blocks until that is done; throws nothing. May be called on any thread;
    /// it calls the functions of the request on the same thread. Keeps alive the parts of the
    /// system that it needs.
    using Open = std::function<Result(const Request &)>;

    /// Never empty. Must be called on the thread that uses the system.
    virtual Open opener() = 0;

protected:
    virtual ~DeviceOpener() = default;
};

} // namespace OrvCam

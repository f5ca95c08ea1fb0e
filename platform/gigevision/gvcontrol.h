// SPDX-License-Identifier: MIT
#pragma once

#include "gvcp.h"
#include "networkadapter.h"

#include <OrvCam/Codes.h>
#include <OrvCam/Export.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace OrvGigEVision {

/// A GigE Vision camera that answered.
struct GvCamera
{
    Gvcp::Identity identity;
    int32_t accessState = OrvCam::AccessUnknown;

    /// MAC address, or manufacturer and serial number of a camera that does not tell its MAC
    /// address. The same for one camera at all times.
    std::string id() const;
};

/// The cameras behind the adapter, each once, and whether they can be opened. Takes exactly so
/// long; what comes later is not waited for.
ORVCAMERAAPI_EXPORT std::vector<GvCamera> discoverCameras(const NetworkAdapter &adapter,
                                                          std::chrono::milliseconds time);

/// The camera with that id, as soon as it answers; nothing when it does not in time. Its access
/// state is known only as far as its address tells it.
ORVCAMERAAPI_EXPORT std::optional<GvCamera>
findCamera(const NetworkAdapter &adapter, const std::string &id, std::chrono::milliseconds time);

/// What a camera says to the request for a register.
struct RegisterAnswer
{
    uint16_t status;
    uint32_t value; ///< when the status is success
};

/// Nothing when no answer comes in time; asks again meanwhile.
ORVCAMERAAPI_EXPORT std::optional<RegisterAnswer> readRegister(const NetworkAdapter &adapter,
                                                               uint32_t camera, uint32_t address,
                                                               std::chrono::milliseconds time);

/// Gives the camera of that MAC address a new configuration and waits until it answers with it.
/// Returns `ErrorTimeout` when it does not, `ErrorAccessDenied` when it refuses.
ORVCAMERAAPI_EXPORT int32_t forceIp(const NetworkAdapter &adapter, uint64_t mac, uint32_t ip,
                                    uint32_t mask, uint32_t gateway,
                                    std::chrono::milliseconds time);

} // namespace OrvGigEVision

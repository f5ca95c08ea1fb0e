// SPDX-License-Identifier: MIT
#pragma once

#include "gvcp.h"
#include "networkadapter.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace OrvGigEVision {

/// Whether somebody controls a camera.
enum class Control { Free, Taken, Unknown };

/// A GigE Vision camera that answered.
struct GvCamera
{
    Gvcp::Identity identity;
    Control control = Control::Unknown;

    /// False when its address is in none of the adapter's subnets.
    bool isReachable = false;

    /// MAC address, or manufacturer and serial number of a camera that does not tell its MAC
    /// address. The same for one camera at all times.
    std::string id() const;
};

/// The cameras behind the adapter, each once, and whether they can be opened. Takes exactly so
/// long; what comes later is not waited for.
std::vector<GvCamera> discoverCameras(const NetworkAdapter &adapter,
                                      std::chrono::milliseconds time);

/// The camera with that id, as soon as it answers; nothing when it does not in time. Who controls
/// it is not asked.
std::optional<GvCamera> findCamera(const NetworkAdapter &adapter, const std::string &id,
                                   std::chrono::milliseconds time,
                                   const std::function<bool()> &isCancelled = nullptr);

enum class ForceResult {
    Done,
    Refused,
    NotSeen ///< the camera has not answered with the new configuration in time
};

/// Gives the camera of that MAC address a new configuration and waits until it answers with it.
ForceResult forceIp(const NetworkAdapter &adapter, uint64_t mac, uint32_t ip, uint32_t mask,
                    uint32_t gateway, std::chrono::milliseconds time);

} // namespace OrvGigEVision

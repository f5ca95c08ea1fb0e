// SPDX-License-Identifier: MIT
#pragma once

#include "gvcamera.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace OrvGigEVision {

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

/// Gives the camera of that MAC address a new configuration and waits until it answers with it:
/// `Limits::forcedIpBudget` from when it acknowledges the command, which is repeated until then. A
/// camera that does neither is given up earlier; a cancelled one counts as not seen.
ForceResult forceIp(const NetworkAdapter &adapter, uint64_t mac, uint32_t ip, uint32_t mask,
                    uint32_t gateway, const std::function<bool()> &isCancelled = nullptr);

} // namespace OrvGigEVision

// SPDX-License-Identifier: MIT
#pragma once

#include "gvcamera.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace OrvGigEVision {

/// Returns the camera with that id as soon as it answers, or nothing after the time-out. Its
/// controller is not queried.
std::optional<GvCamera> findCamera(const NetworkAdapter &adapter, const std::string &id,
                                   std::chrono::milliseconds time,
                                   const std::function<bool()> &isCancelled = nullptr);

enum class ForceResult {
    Done,
    Refused,
    NotSeen ///< no answer with the new configuration in time
};

/// Forces a new configuration on the camera with that MAC address, and blocks until it answers with
/// it: for `Limits::forcedIpBudget` after it has acknowledged the command, which is repeated until
/// then. Fails earlier when the camera does neither. A cancelled call counts as not seen.
ForceResult forceIp(const NetworkAdapter &adapter, uint64_t mac, uint32_t ip, uint32_t mask,
                    uint32_t gateway, const std::function<bool()> &isCancelled = nullptr);

} // namespace OrvGigEVision

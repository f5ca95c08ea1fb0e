// SPDX-License-Identifier: MIT
#pragma once

#include "gvcp.h"
#include "networkadapter.h"

#include <optional>
#include <string>

namespace OrvGigEVision {

/// Whether a camera is under control of a program.
enum class Control { Free, Taken, Unknown };

/// A GigE Vision camera that answered.
struct GvCamera
{
    Gvcp::Identity identity;
    Control control = Control::Unknown;

    /// False when no packet may go to its address: it is in none of the adapter's subnets, or no
    /// host there can have it.
    bool isReachable = false;

    /// Another camera behind the same adapter has the same name.
    bool isNameShared = false;

    /// MAC address, or manufacturer and serial number of a camera without a MAC
    /// address.
    std::string name() const;

    /// The name, with address and serial number when the name is shared. The same for one camera at
    /// all times, unless it shares its name.
    std::string id() const;

    /// True for either kind of id.
    bool isCalled(const std::string &id) const;
};

/// The camera that has given this answer to a discovery command. Nothing when it cannot be that:
/// cameras answer from their own address, and no camera has a multicast MAC address.
std::optional<GvCamera> parseCamera(const Gvcp::Acknowledge &answer, uint32_t sender,
                                    const NetworkAdapter &adapter);

} // namespace OrvGigEVision

// SPDX-License-Identifier: MIT
#pragma once

#include "gvcp.h"
#include "networkadapter.h"

#include <optional>
#include <string>

namespace OrvGigEVision {

/// Whether a camera is under control of a program.
enum class Control { Free, Taken, Unknown };

/// A GigE Vision camera that has answered.
struct GvCamera
{
    Gvcp::Identity identity;
    Control control = Control::Unknown;

    /// False when no packet may be sent to its address: it is in none of the adapter's subnets, or
    /// it cannot be the address of a host.
    bool isReachable = false;

    /// Another camera on the same adapter has the same name.
    bool isNameShared = false;

    /// The MAC address, or manufacturer and serial number of a camera without one.
    std::string name() const;

    /// The name, with address and serial number when the name is not unique. Constant for one
    /// camera, unless its name is not unique.
    std::string id() const;

    /// True for both kinds of id.
    bool isCalled(const std::string &id) const;
};

/// The camera that has sent this answer to a discovery command. Nothing for an invalid answer:
/// cameras answer from their own address, and no camera has a multicast MAC address.
std::optional<GvCamera> parseCamera(const Gvcp::Acknowledge &answer, uint32_t sender,
                                    const NetworkAdapter &adapter);

} // namespace OrvGigEVision

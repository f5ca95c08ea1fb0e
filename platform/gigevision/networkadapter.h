// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace OrvGigEVision {

/// A network adapter that cameras may be connected to. The first byte of an address is the most
/// significant one of the number.
struct NetworkAdapter
{
    struct Address
    {
        uint32_t ip;
        uint32_t mask;

        uint32_t broadcast() const { return ip | ~mask; }

        /// True for the other hosts of the subnet.
        bool reaches(uint32_t other) const;
    };

    std::string name; ///< the system's name, such as "eth0"
    int index = 0;    ///< the system's index
    uint64_t mac = 0;
    bool isConnected = false; ///< has a carrier
    std::vector<Address> addresses;

    /// The adapter's address from which `camera` is reachable; null when it is in none of the
    /// subnets, not a host address, or this machine's own address on this adapter.
    const Address *addressFor(uint32_t camera) const;
};

/// The adapters that are up and can broadcast to a network outside of this machine, in the system's
/// order. Includes those without an IPv4 address, but not the ports of a bridge or a bond.
std::vector<NetworkAdapter> networkAdapters();

/// "192.168.0.1"
std::string ipText(uint32_t ip);

} // namespace OrvGigEVision

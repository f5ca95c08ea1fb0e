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

    std::string name; ///< as the system calls it, "eth0"
    int index = 0;    ///< likewise
    uint64_t mac = 0;
    bool isConnected = false; ///< has a carrier
    std::vector<Address> addresses;

    /// The address from which `camera` is reached; null when it is in none of the subnets, when it
    /// is no host's, or this machine's own on this adapter.
    const Address *addressFor(uint32_t camera) const;
};

/// The adapters that are up and can broadcast to a network beyond this machine, in the system's
/// order; also those without an IPv4 address, except when they only serve a bridge or a bond.
std::vector<NetworkAdapter> networkAdapters();

/// "192.168.0.1"
std::string ipText(uint32_t ip);

} // namespace OrvGigEVision

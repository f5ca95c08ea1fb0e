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
        bool reaches(uint32_t other) const { return other != 0 && (other & mask) == (ip & mask); }
    };

    std::string name; ///< as the system calls it, "eth0"
    int index = 0;    ///< likewise
    uint64_t mac = 0;
    std::vector<Address> addresses; ///< never empty

    /// The address from which `camera` is reached; null when it is in none of the subnets.
    const Address *addressFor(uint32_t camera) const;
};

/// The adapters that are up and can broadcast to a network beyond this machine, in the system's
/// order.
std::vector<NetworkAdapter> networkAdapters();

/// "192.168.0.1"
std::string ipText(uint32_t ip);

} // namespace OrvGigEVision

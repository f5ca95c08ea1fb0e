// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace OrvSimulation {

/// The identity of a simulated camera.
///
/// Texts are UTF-8, truncated to the length of their register, which is given in bytes. Addresses
/// are numbers whose most significant byte is the first group of the usual notation.
struct CameraIdentity
{
    std::string serial = "SIM-0001";                                ///< 15; also in its name
    std::string vendor = "Orv Simulation";                          ///< 31
    std::string model = "DualFrame 12M";                            ///< 31
    std::string family = "DualFrame";                               ///< 31
    std::string version = "1.3.0";                                  ///< 31
    std::string manufacturerInfo = "Simulated camera, no hardware"; ///< 47
    std::string userName;                                           ///< 15
    std::string sensorType = "CMOS 4096 x 3072 colour";             ///< 31
    std::uint64_t macAddress = 0x02005E100001;                      ///< lower 48 bits
    std::uint32_t ipAddress = 0xC0000215;                           ///< 192.0.2.21
    std::uint32_t subnetMask = 0xFFFFFF00;                          ///< 255.255.255.0
    std::uint32_t gateway = 0xC0000201;                             ///< 192.0.2.1
};

} // namespace OrvSimulation

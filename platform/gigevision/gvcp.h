// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The bytes of the GigE Vision control protocol, as far as finding and addressing cameras needs
/// them. Addresses are numbers whose most significant byte is the first one on the wire.
namespace OrvGigEVision::Gvcp {

/// Where cameras listen.
constexpr uint16_t port = 3956;

/// The longest packet that a camera may send.
constexpr std::size_t maxPacketSize = 576;

/// The register that tells who controls the camera.
constexpr uint32_t controlPrivilegeRegister = 0x0A00;

/// The bits of that register that are set while somebody has control.
constexpr uint32_t controlPrivilegeMask = 0x3;

using Packet = std::vector<uint8_t>;

/// Asks every camera that it reaches who it is. `id` must not be 0; the answer repeats it.
Packet discoveryCommand(uint16_t id);

Packet readRegisterCommand(uint16_t id, uint32_t address);

/// Has the camera of that MAC address change its configuration, until it is switched off.
Packet forceIpCommand(uint16_t id, uint64_t mac, uint32_t ip, uint32_t mask, uint32_t gateway);

enum class Answer : uint16_t { Discovery = 0x0003, ForceIp = 0x0005, ReadRegister = 0x0081 };

/// `Acknowledge::status`; cameras may send others.
enum Status : uint16_t { StatusSuccess = 0x0000, StatusAccessDenied = 0x8006, StatusBusy = 0x8007 };

/// What every answer begins with. `payload` points into the packet.
struct Acknowledge
{
    uint16_t status;
    uint16_t answer; ///< an `Answer`, or something else
    uint16_t id;
    const uint8_t *payload;
    std::size_t size;

    bool is(Answer wanted, uint16_t wantedId) const
    {
        return answer == static_cast<uint16_t>(wanted) && id == wantedId;
    }
};

/// Nothing when the bytes are no answer or fewer than they claim to be.
std::optional<Acknowledge> parseAcknowledge(const uint8_t *data, std::size_t size);

/// Who a camera says it is. Texts are the bytes on the wire, without the padding.
struct Identity
{
    uint64_t mac = 0;
    uint32_t ip = 0;
    uint32_t mask = 0;
    uint32_t gateway = 0;
    std::string manufacturer;
    std::string model;
    std::string version;
    std::string manufacturerInfo;
    std::string serial;
    std::string userName;
};

/// Nothing when it is too short.
std::optional<Identity> parseIdentity(const Acknowledge &answer);
std::optional<uint32_t> parseRegister(const Acknowledge &answer);

} // namespace OrvGigEVision::Gvcp

// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Encodes and decodes the packets of the GigE Vision control protocol: the commands of this
/// library and their answers. Addresses are numbers whose most significant byte is the first one on
/// the wire.
namespace OrvGigEVision::Gvcp {

/// The port of cameras.
constexpr uint16_t port = 3956;

/// The largest packet of a camera.
constexpr std::size_t maxPacketSize = 576;

/// The largest number of bytes of a memory command, and of registers of a read command.
constexpr uint32_t maxMemorySize = 536;
constexpr std::size_t maxRegisters = maxMemorySize / 4;

/// Registers of all cameras, of 4 bytes unless noted.
enum Register : uint32_t {
    FirstUrl = 0x0200, ///< a text of `urlSize` bytes
    SecondUrl = 0x0400,
    Capability = 0x0934,
    HeartbeatTimeout = 0x0938, ///< milliseconds
    ControlPrivilege = 0x0A00,
    FirstOfMaker = 0xA000 ///< start of the registers that only the description defines
};
constexpr uint32_t urlSize = 512;

/// Bits of `Capability`.
constexpr uint32_t canConcatenate = 0x1;
constexpr uint32_t canWriteMemory = 0x2;

/// Values of `ControlPrivilege`.
constexpr uint32_t controlPrivilege = 0x2;
constexpr uint32_t controlPrivilegeMask = 0x3; ///< set while a client has control

using Packet = std::vector<uint8_t>;

// The commands. `id` must not be 0; the answer contains it.

/// Requests the identity of every camera that receives it.
Packet discoveryCommand(uint16_t id);

/// Sets the configuration of the camera with that MAC address until it is switched off.
Packet forceIpCommand(uint16_t id, uint64_t mac, uint32_t ip, uint32_t mask, uint32_t gateway);

/// One to `maxRegisters` registers of 4 bytes; several only with `canConcatenate`.
Packet readRegistersCommand(uint16_t id, const std::vector<uint32_t> &addresses);

struct RegisterValue
{
    uint32_t address;
    uint32_t value;
};

/// The same; at most half as many.
Packet writeRegistersCommand(uint16_t id, const std::vector<RegisterValue> &values);

/// Address and size must be multiples of 4, the size at most `maxMemorySize`.
Packet readMemoryCommand(uint16_t id, uint32_t address, uint32_t size);
Packet writeMemoryCommand(uint16_t id, uint32_t address, const uint8_t *bytes, uint32_t size);

// The answers

enum class Answer : uint16_t {
    Discovery = 0x0003,
    ForceIp = 0x0005,
    ReadRegister = 0x0081,
    WriteRegister = 0x0083,
    ReadMemory = 0x0085,
    WriteMemory = 0x0087,
    Pending = 0x0089
};

/// `Acknowledge::status`; cameras may send others.
enum Status : uint16_t {
    StatusSuccess = 0x0000,
    StatusNotImplemented = 0x8001,
    StatusInvalidParameter = 0x8002,
    StatusInvalidAddress = 0x8003,
    StatusWriteProtect = 0x8004,
    StatusBadAlignment = 0x8005,
    StatusAccessDenied = 0x8006,
    StatusBusy = 0x8007
};

/// The header of an answer. `payload` points into the packet.
struct Acknowledge
{
    uint16_t status;
    uint16_t answer; ///< an `Answer` or an unknown number
    uint16_t id;
    const uint8_t *payload;
    std::size_t size;

    bool is(Answer wanted, uint16_t wantedId) const
    {
        return answer == static_cast<uint16_t>(wanted) && id == wantedId;
    }
};

/// Nothing when the bytes are not an answer, shorter than stated, or longer, unless the rest is
/// zeros.
std::optional<Acknowledge> parseAcknowledge(const uint8_t *data, std::size_t size);

/// The identity of a camera. Texts are the bytes on the wire without padding.
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

/// Nothing for a payload that is too short.
std::optional<Identity> parseIdentity(const Acknowledge &answer);

/// The values of `count` registers; for a refused command, those of the registers before the
/// refused one. Nothing for an invalid answer.
std::optional<std::vector<uint32_t>> parseRegisters(const Acknowledge &answer, std::size_t count);

/// The `size` bytes that were read at the address; null for an invalid answer.
const uint8_t *parseMemory(const Acknowledge &answer, uint32_t address, uint32_t size);

/// The time that the camera needs for its answer.
std::optional<std::chrono::milliseconds> parsePending(const Acknowledge &answer);

} // namespace OrvGigEVision::Gvcp

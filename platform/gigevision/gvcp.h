// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The bytes of the GigE Vision control protocol: the commands that this library sends, and their
/// answers. Addresses are numbers whose most significant byte is the first one on the wire.
namespace OrvGigEVision::Gvcp {

/// Where cameras listen.
constexpr uint16_t port = 3956;

/// The longest packet that a camera may send.
constexpr std::size_t maxPacketSize = 576;

/// The most bytes that one command reads or writes as memory, and the most registers that one
/// reads.
constexpr uint32_t maxMemorySize = 536;
constexpr std::size_t maxRegisters = maxMemorySize / 4;

/// Registers that every camera has, those of 4 bytes unless noted.
enum Register : uint32_t {
    FirstUrl = 0x0200, ///< a text of `urlSize` bytes
    SecondUrl = 0x0400,
    Capability = 0x0934,
    HeartbeatTimeout = 0x0938, ///< milliseconds
    ControlPrivilege = 0x0A00,
    FirstOfMaker = 0xA000 ///< from here on, registers are what the description says
};
constexpr uint32_t urlSize = 512;

/// Bits of `Capability`.
constexpr uint32_t canConcatenate = 0x1;
constexpr uint32_t canWriteMemory = 0x2;

/// Values of `ControlPrivilege`.
constexpr uint32_t controlPrivilege = 0x2;
constexpr uint32_t controlPrivilegeMask = 0x3; ///< set while a client has control

using Packet = std::vector<uint8_t>;

// The commands. `id` must not be 0; the answer repeats it.

/// Asks every camera that it reaches who it is.
Packet discoveryCommand(uint16_t id);

/// Has the camera of that MAC address change its configuration, until it is switched off.
Packet forceIpCommand(uint16_t id, uint64_t mac, uint32_t ip, uint32_t mask, uint32_t gateway);

/// One to `maxRegisters` registers of 4 bytes; several only with `canConcatenate`.
Packet readRegistersCommand(uint16_t id, const std::vector<uint32_t> &addresses);

struct RegisterValue
{
    uint32_t address;
    uint32_t value;
};

/// Likewise; at most half as many.
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

/// Nothing when the bytes are no answer, fewer than they claim to be, or more, unless they are
/// filled up with zeros.
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

/// The values of `count` registers; of a refused command those that were read before the camera
/// came to the one that it refused. Nothing when the camera cannot mean that.
std::optional<std::vector<uint32_t>> parseRegisters(const Acknowledge &answer, std::size_t count);

/// The `size` bytes that were read at the address; null when the answer holds something else.
const uint8_t *parseMemory(const Acknowledge &answer, uint32_t address, uint32_t size);

/// How long the camera will take for its answer.
std::optional<std::chrono::milliseconds> parsePending(const Acknowledge &answer);

} // namespace OrvGigEVision::Gvcp

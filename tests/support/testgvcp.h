// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// GVCP for a TestCamera: big-endian numbers after a header of 8 bytes.
namespace TestGvcp {

constexpr uint16_t gvcpPort = 3956;
constexpr std::size_t headerSize = 8;

enum Kind : uint16_t {
    Discovery = 0x0002,
    ForceIp = 0x0004,
    PacketResend = 0x0040,
    ReadRegister = 0x0080,
    WriteRegister = 0x0082,
    ReadMemory = 0x0084,
    WriteMemory = 0x0086,
    PendingAck = 0x0089
};

enum Status : uint16_t {
    Success = 0,
    NotImplemented = 0x8001,
    InvalidParameter = 0x8002,
    InvalidAddress = 0x8003,
    WriteProtect = 0x8004,
    BadAlignment = 0x8005,
    AccessDenied = 0x8006,
    Busy = 0x8007,
    InvalidHeader = 0x800E,
    AnyError = 0x8FFF
};

enum Address : uint32_t {
    VersionRegister = 0x0000,
    DeviceMode = 0x0004,
    MacHigh = 0x0008,
    MacLow = 0x000C,
    IpOptions = 0x0010,
    IpConfiguration = 0x0014,
    CurrentIp = 0x0024,
    CurrentNetmask = 0x0034,
    CurrentGateway = 0x0044,
    Vendor = 0x0048,
    Model = 0x0068,
    DeviceVersion = 0x0088,
    ManufacturerInfo = 0x00A8,
    Serial = 0x00D8,
    UserName = 0x00E8,
    DiscoveryEnd = 0x00F8,
    FirstUrl = 0x0200,
    SecondUrl = 0x0400,
    Interfaces = 0x0600,
    PersistentIp = 0x064C,
    PersistentNetmask = 0x065C,
    PersistentGateway = 0x066C,
    ReadOnlyEnd = 0x0938,
    Capability = 0x0934,
    HeartbeatTimeout = 0x0938,
    Configuration = 0x0954,
    ControlPrivilege = 0x0A00,
};

inline bool isTransfer(uint16_t kind)
{
    return kind >= ReadRegister && kind <= WriteMemory;
}

inline bool isWrite(uint16_t kind)
{
    return kind == WriteRegister || kind == WriteMemory;
}

inline uint32_t number(const std::string &bytes, std::size_t offset, std::size_t size = 4)
{
    uint32_t value = 0;
    for (std::size_t i = 0; i < size; ++i)
        value = value << 8 | static_cast<uint8_t>(bytes[offset + i]);
    return value;
}

/// `value` in `size` bytes, which may be more than its type has.
inline std::string bytesOf(uint64_t value, std::size_t size = 4)
{
    std::string bytes(size, '\0');
    for (std::size_t i = size; i > 0 && value != 0; value >>= 8)
        bytes[--i] = static_cast<char>(value);
    return bytes;
}

inline std::string answerHeader(uint16_t status, int kind, std::size_t size, uint16_t id)
{
    return bytesOf(status, 2) + bytesOf(static_cast<uint64_t>(kind), 2) + bytesOf(size, 2) +
           bytesOf(id, 2);
}

} // namespace TestGvcp

// SPDX-License-Identifier: MIT
#include "gvcp.h"

#include <algorithm>

namespace OrvGigEVision::Gvcp {

namespace {

constexpr uint8_t commandKey = 0x42;
constexpr uint8_t answerRequired = 0x01;
constexpr uint8_t mayAnswerByBroadcast = 0x10;
constexpr std::size_t headerSize = 8;

enum Command : uint16_t {
    Discovery = 0x0002,
    ForceIp = 0x0004,
    ReadRegister = 0x0080,
    WriteRegister = 0x0082,
    ReadMemory = 0x0084,
    WriteMemory = 0x0086
};

// Offsets in a discovery answer, which is 248 bytes long.
constexpr std::size_t macAt = 10;
constexpr std::size_t ipAt = 36;
constexpr std::size_t maskAt = 52;
constexpr std::size_t gatewayAt = 68;
constexpr std::size_t manufacturerAt = 72;
constexpr std::size_t modelAt = 104;
constexpr std::size_t versionAt = 136;
constexpr std::size_t manufacturerInfoAt = 168;
constexpr std::size_t serialAt = 216;
constexpr std::size_t userNameAt = 232;
constexpr std::size_t identitySize = 248;

void append(Packet &packet, uint64_t number, unsigned bytes)
{
    for (unsigned i = bytes; i-- > 0;)
        packet.push_back(static_cast<uint8_t>(number >> (8 * i)));
}

uint64_t numberAt(const uint8_t *data, unsigned bytes)
{
    uint64_t number = 0;
    for (unsigned i = 0; i < bytes; ++i)
        number = number << 8 | data[i];
    return number;
}

uint32_t wordAt(const uint8_t *data)
{
    return static_cast<uint32_t>(numberAt(data, 4));
}

uint16_t halfAt(const uint8_t *data)
{
    return static_cast<uint16_t>(numberAt(data, 2));
}

Packet command(Command code, uint8_t flags, std::size_t payloadSize, uint16_t id)
{
    Packet packet{commandKey, flags};
    append(packet, code, 2);
    append(packet, payloadSize, 2);
    append(packet, id, 2);
    return packet;
}

std::string textIn(const uint8_t *from, const uint8_t *to)
{
    const uint8_t *end = std::find(from, to, 0);
    while (end != from && end[-1] == ' ')
        --end;
    return std::string(from, end);
}

} // namespace

Packet discoveryCommand(uint16_t id)
{
    return command(Discovery, answerRequired | mayAnswerByBroadcast, 0, id);
}

Packet forceIpCommand(uint16_t id, uint64_t mac, uint32_t ip, uint32_t mask, uint32_t gateway)
{
    Packet packet = command(ForceIp, answerRequired | mayAnswerByBroadcast, 56, id);
    append(packet, mac & 0xFFFFFFFFFFFF, 8);
    for (const uint32_t address : {ip, mask, gateway}) {
        packet.insert(packet.end(), 12, 0);
        append(packet, address, 4);
    }
    return packet;
}

Packet readRegistersCommand(uint16_t id, const std::vector<uint32_t> &addresses)
{
    Packet packet = command(ReadRegister, answerRequired, 4 * addresses.size(), id);
    for (const uint32_t address : addresses)
        append(packet, address, 4);
    return packet;
}

Packet writeRegistersCommand(uint16_t id, const std::vector<RegisterValue> &values)
{
    Packet packet = command(WriteRegister, answerRequired, 8 * values.size(), id);
    for (const RegisterValue &value : values) {
        append(packet, value.address, 4);
        append(packet, value.value, 4);
    }
    return packet;
}

Packet readMemoryCommand(uint16_t id, uint32_t address, uint32_t size)
{
    Packet packet = command(ReadMemory, answerRequired, 8, id);
    append(packet, address, 4);
    append(packet, size, 4); // the upper half is reserved
    return packet;
}

Packet writeMemoryCommand(uint16_t id, uint32_t address, const uint8_t *bytes, uint32_t size)
{
    Packet packet = command(WriteMemory, answerRequired, 4 + size, id);
    append(packet, address, 4);
    packet.insert(packet.end(), bytes, bytes + size);
    return packet;
}

std::optional<Acknowledge> parseAcknowledge(const uint8_t *data, std::size_t size)
{
    if (size < headerSize)
        return std::nullopt;
    const std::size_t payloadSize = halfAt(data + 4);
    if (size - headerSize < payloadSize)
        return std::nullopt;
    const auto isPadding = [](uint8_t byte) { return byte == 0; };
    if (!std::all_of(data + headerSize + payloadSize, data + size, isPadding))
        return std::nullopt;
    return Acknowledge{halfAt(data), halfAt(data + 2), halfAt(data + 6), data + headerSize,
                       payloadSize};
}

std::optional<Identity> parseIdentity(const Acknowledge &answer)
{
    if (answer.size < identitySize)
        return std::nullopt;
    const uint8_t *data = answer.payload;
    Identity identity;
    identity.mac = numberAt(data + macAt, 6);
    identity.ip = wordAt(data + ipAt);
    identity.mask = wordAt(data + maskAt);
    identity.gateway = wordAt(data + gatewayAt);
    identity.manufacturer = textIn(data + manufacturerAt, data + modelAt);
    identity.model = textIn(data + modelAt, data + versionAt);
    identity.version = textIn(data + versionAt, data + manufacturerInfoAt);
    identity.manufacturerInfo = textIn(data + manufacturerInfoAt, data + serialAt);
    identity.serial = textIn(data + serialAt, data + userNameAt);
    identity.userName = textIn(data + userNameAt, data + identitySize);
    return identity;
}

std::optional<std::vector<uint32_t>> parseRegisters(const Acknowledge &answer, std::size_t count)
{
    const bool isWhole = answer.size == 4 * count;
    const bool isPart = answer.size % 4 == 0 && answer.size < 4 * count;
    if (answer.status == StatusSuccess ? !isWhole : !isPart)
        return std::nullopt;
    std::vector<uint32_t> values;
    for (std::size_t at = 0; at < answer.size; at += 4)
        values.push_back(wordAt(answer.payload + at));
    return values;
}

const uint8_t *parseMemory(const Acknowledge &answer, uint32_t address, uint32_t size)
{
    const bool isFine = answer.size == 4 + size && wordAt(answer.payload) == address;
    return isFine ? answer.payload + 4 : nullptr;
}

std::optional<std::chrono::milliseconds> parsePending(const Acknowledge &answer)
{
    if (answer.size < 4)
        return std::nullopt;
    return std::chrono::milliseconds(halfAt(answer.payload + 2));
}

} // namespace OrvGigEVision::Gvcp

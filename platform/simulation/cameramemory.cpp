// SPDX-License-Identifier: MIT
#include "simulation/cameramemory.h"

#include <algorithm>
#include <cstring>

namespace OrvSimulation {

std::uint32_t CameraMemory::read(Address address) const
{
    std::uint32_t value = 0;
    for (const unsigned char byte : readBlock(address, sizeof value))
        value = value << 8 | byte;
    return value;
}

void CameraMemory::write(Address address, std::uint32_t value)
{
    writeBlock(address,
               {static_cast<unsigned char>(value >> 24), static_cast<unsigned char>(value >> 16),
                static_cast<unsigned char>(value >> 8), static_cast<unsigned char>(value)});
}

void CameraMemory::write64(Address address, std::uint64_t value)
{
    write(address, static_cast<std::uint32_t>(value >> 32));
    write(address + 4, static_cast<std::uint32_t>(value));
}

void CameraMemory::writeFloat(Address address, float value)
{
    std::uint32_t bits = 0;
    static_assert(sizeof bits == sizeof value, "the registers hold single precision numbers");
    std::memcpy(&bits, &value, sizeof bits);
    write(address, bits);
}

void CameraMemory::writeText(Address address, const std::string &text, std::size_t length)
{
    std::vector<unsigned char> bytes(text.begin(), text.end());
    bytes.resize(length - 1);
    bytes.push_back(0);
    writeBlock(address, bytes);
}

std::vector<unsigned char> CameraMemory::readBlock(Address address, std::size_t length) const
{
    if (!holds(address, length))
        return std::vector<unsigned char>(length);
    const auto first = m_bytes.begin() + static_cast<std::ptrdiff_t>(address);
    return {first, first + static_cast<std::ptrdiff_t>(length)};
}

void CameraMemory::writeBlock(Address address, const std::vector<unsigned char> &bytes)
{
    if (holds(address, bytes.size()))
        std::copy(bytes.begin(), bytes.end(),
                  m_bytes.begin() + static_cast<std::ptrdiff_t>(address));
}

} // namespace OrvSimulation

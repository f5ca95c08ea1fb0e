// SPDX-License-Identifier: MIT
#include "simulation/cameramemory.h"

#include <arv.h>

#include <cstring>

namespace OrvSimulation {

std::uint32_t CameraMemory::read(Address address) const
{
    std::uint32_t value = 0;
    arv_fake_camera_read_memory(m_camera, address, sizeof value, &value);
    return GUINT32_FROM_BE(value);
}

void CameraMemory::write(Address address, std::uint32_t value)
{
    const std::uint32_t bytes = GUINT32_TO_BE(value);
    arv_fake_camera_write_memory(m_camera, address, sizeof bytes, &bytes);
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
    std::vector<unsigned char> bytes(length);
    arv_fake_camera_read_memory(m_camera, address, static_cast<guint32>(length), bytes.data());
    return bytes;
}

void CameraMemory::writeBlock(Address address, const std::vector<unsigned char> &bytes)
{
    arv_fake_camera_write_memory(m_camera, address, static_cast<guint32>(bytes.size()),
                                 bytes.data());
}

} // namespace OrvSimulation

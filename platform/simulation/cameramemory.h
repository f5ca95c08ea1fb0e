// SPDX-License-Identifier: MIT
#pragma once

#include "simulation/cameraregisters.h"

#include <cstddef>
#include <string>
#include <vector>

namespace OrvSimulation {

/// The registers of a simulated camera, as the camera itself reads and writes them.
///
/// It implements the byte order (most significant first), but not the meaning of registers.
/// Addresses outside of it are a programming error: reads return 0 and writes have no effect.
class CameraMemory
{
public:
    using Address = Registers::Address;

    /// In bytes; addresses start at 0, and so do all registers.
    static constexpr std::size_t size = 0x10000;

    static constexpr bool holds(std::uint64_t address, std::size_t length)
    {
        return address <= size && length <= size - address;
    }

    std::uint32_t read(Address address) const;
    void write(Address address, std::uint32_t value);

    /// 64 bit registers take the eight bytes from the address on.
    void write64(Address address, std::uint64_t value);
    void writeFloat(Address address, float value);

    /// Fills the whole register, which ends with at least one 0; a longer text is truncated.
    void writeText(Address address, const std::string &text, std::size_t length);

    std::vector<unsigned char> readBlock(Address address, std::size_t length) const;
    void writeBlock(Address address, const std::vector<unsigned char> &bytes);

private:
    std::vector<unsigned char> m_bytes = std::vector<unsigned char>(size);
};

} // namespace OrvSimulation

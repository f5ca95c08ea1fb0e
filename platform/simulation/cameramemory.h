// SPDX-License-Identifier: MIT
#pragma once

#include "simulation/cameraregisters.h"

#include <string>
#include <vector>

typedef struct _ArvFakeCamera ArvFakeCamera;

namespace OrvSimulation {

/// Reads and writes the registers of a simulated camera from within, as the camera itself does.
///
/// It knows the byte order (most significant first) and nothing about the meaning of a register.
/// The camera is not owned and must outlive the object. Addresses outside the camera's memory are a
/// programming error: they read as 0 and writing them does nothing.
class CameraMemory
{
public:
    using Address = Registers::Address;

    explicit CameraMemory(ArvFakeCamera *camera) : m_camera(camera) {}

    std::uint32_t read(Address address) const;
    void write(Address address, std::uint32_t value);

    /// 64 bit registers take the eight bytes from the address on.
    void write64(Address address, std::uint64_t value);
    void writeFloat(Address address, float value);

    /// Fills the whole register, which ends with at least one 0: a longer text is cut.
    void writeText(Address address, const std::string &text, std::size_t length);

    std::vector<unsigned char> readBlock(Address address, std::size_t length) const;
    void writeBlock(Address address, const std::vector<unsigned char> &bytes);

private:
    ArvFakeCamera *m_camera;
};

} // namespace OrvSimulation

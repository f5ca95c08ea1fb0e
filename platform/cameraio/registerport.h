// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <cstdint>
#include <map>
#include <vector>

typedef struct _ArvDevice ArvDevice;

namespace OrvCameraIo {

/// Where the registers of a description are. Errors are Aravis's, so that they can pass through
/// its engine; every operation returns false when it sets one.
class RegisterPort
{
public:
    virtual ~RegisterPort() = default;

    virtual bool read(uint64_t address, uint32_t size, void *bytes, GError **error) = 0;
    virtual bool write(uint64_t address, uint32_t size, const void *bytes, GError **error) = 0;

    /// A register of four bytes, in the byte order of this machine.
    virtual bool readRegister(uint64_t address, uint32_t *value, GError **error) = 0;
    virtual bool writeRegister(uint64_t address, uint32_t value, GError **error) = 0;
};

/// The registers of a camera.
///
/// A camera that does not answer costs seconds, which whoever asks spends waiting. After one such
/// wait the next transactions fail at once for some time, so that asking for a hundred features
/// does not take a hundred times as long.
class DevicePort : public RegisterPort
{
public:
    /// Holds a reference to the device.
    explicit DevicePort(ArvDevice *device);
    ~DevicePort() override;
    DevicePort(const DevicePort &) = delete;
    DevicePort &operator=(const DevicePort &) = delete;

    bool read(uint64_t address, uint32_t size, void *bytes, GError **error) override;
    bool write(uint64_t address, uint32_t size, const void *bytes, GError **error) override;
    bool readRegister(uint64_t address, uint32_t *value, GError **error) override;
    bool writeRegister(uint64_t address, uint32_t value, GError **error) override;

private:
    template<typename Transfer>
    bool transfer(GError **error, Transfer transfer);

    ArvDevice *m_device;
    int64_t m_silentUntil = 0; ///< monotonic time in microseconds
};

/// Registers without a camera: any address can be read and written, and is 0 until written.
class MemoryPort : public RegisterPort
{
public:
    bool read(uint64_t address, uint32_t size, void *bytes, GError **error) override;
    bool write(uint64_t address, uint32_t size, const void *bytes, GError **error) override;
    bool readRegister(uint64_t address, uint32_t *value, GError **error) override;
    bool writeRegister(uint64_t address, uint32_t value, GError **error) override;

private:
    static constexpr uint64_t PageSize = 4096;

    std::map<uint64_t, std::vector<uint8_t>> m_pages; ///< by page number
};

} // namespace OrvCameraIo

// SPDX-License-Identifier: MIT
#include "registerport.h"

#include <arv.h>

#include <algorithm>

namespace OrvCameraIo {

namespace {

constexpr int64_t SilenceAfterTimeout = int64_t{5} * G_USEC_PER_SEC;

} // namespace

DevicePort::DevicePort(ArvDevice *device) : m_device(ARV_DEVICE(g_object_ref(device))) {}

DevicePort::~DevicePort()
{
    g_object_unref(m_device);
}

template<typename Transfer>
bool DevicePort::transfer(GError **error, Transfer transfer)
{
    if (g_get_monotonic_time() < m_silentUntil) {
        g_set_error_literal(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_TIMEOUT,
                            "the camera does not answer");
        return false;
    }
    GError *failure = nullptr;
    if (transfer(&failure))
        return true;
    if (failure && failure->domain == ARV_DEVICE_ERROR && failure->code == ARV_DEVICE_ERROR_TIMEOUT)
        m_silentUntil = g_get_monotonic_time() + SilenceAfterTimeout;
    g_propagate_error(error, failure);
    return false;
}

bool DevicePort::read(uint64_t address, uint32_t size, void *bytes, GError **error)
{
    return transfer(error, [&](GError **failure) {
        return arv_device_read_memory(m_device, address, size, bytes, failure);
    });
}

bool DevicePort::write(uint64_t address, uint32_t size, const void *bytes, GError **error)
{
    // The engine only reads from the buffer; its signature does not say so.
    return transfer(error, [&](GError **failure) {
        return arv_device_write_memory(m_device, address, size, const_cast<void *>(bytes), failure);
    });
}

bool DevicePort::readRegister(uint64_t address, uint32_t *value, GError **error)
{
    return transfer(error, [&](GError **failure) {
        return arv_device_read_register(m_device, address, value, failure);
    });
}

bool DevicePort::writeRegister(uint64_t address, uint32_t value, GError **error)
{
    return transfer(error, [&](GError **failure) {
        return arv_device_write_register(m_device, address, value, failure);
    });
}

bool MemoryPort::read(uint64_t address, uint32_t size, void *bytes, GError **)
{
    auto *target = static_cast<uint8_t *>(bytes);
    for (uint32_t done = 0; done < size;) {
        const uint64_t offset = (address + done) % PageSize;
        const auto part = static_cast<uint32_t>(std::min<uint64_t>(size - done, PageSize - offset));
        const auto page = m_pages.find((address + done) / PageSize);
        if (page == m_pages.end())
            std::fill_n(target + done, part, uint8_t(0));
        else
            std::copy_n(page->second.begin() + static_cast<std::ptrdiff_t>(offset), part,
                        target + done);
        done += part;
    }
    return true;
}

bool MemoryPort::write(uint64_t address, uint32_t size, const void *bytes, GError **)
{
    const auto *source = static_cast<const uint8_t *>(bytes);
    for (uint32_t done = 0; done < size;) {
        const uint64_t offset = (address + done) % PageSize;
        const auto part = static_cast<uint32_t>(std::min<uint64_t>(size - done, PageSize - offset));
        std::vector<uint8_t> &page = m_pages[(address + done) / PageSize];
        page.resize(PageSize);
        std::copy_n(source + done, part, page.begin() + static_cast<std::ptrdiff_t>(offset));
        done += part;
    }
    return true;
}

bool MemoryPort::readRegister(uint64_t address, uint32_t *value, GError **error)
{
    uint32_t bigEndian = 0;
    const bool read = this->read(address, sizeof bigEndian, &bigEndian, error);
    *value = GUINT32_FROM_BE(bigEndian);
    return read;
}

bool MemoryPort::writeRegister(uint64_t address, uint32_t value, GError **error)
{
    const uint32_t bigEndian = GUINT32_TO_BE(value);
    return write(address, sizeof bigEndian, &bigEndian, error);
}

} // namespace OrvCameraIo

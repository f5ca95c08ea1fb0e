// SPDX-License-Identifier: MIT
#include "registerport.h"

#include <arv.h>

#include <algorithm>

namespace OrvAravis {

DevicePort::DevicePort(ArvDevice *device) : m_device(ARV_DEVICE(g_object_ref(device))) {}

DevicePort::~DevicePort()
{
    g_object_unref(m_device);
}

bool DevicePort::read(uint64_t address, uint32_t size, void *bytes, GError **error)
{
    return arv_device_read_memory(m_device, address, size, bytes, error);
}

bool DevicePort::write(uint64_t address, uint32_t size, const void *bytes, GError **error)
{
    // The engine only reads from the buffer; its signature does not say so.
    return arv_device_write_memory(m_device, address, size, const_cast<void *>(bytes), error);
}

bool DevicePort::readRegister(uint64_t address, uint32_t *value, GError **error)
{
    return arv_device_read_register(m_device, address, value, error);
}

bool DevicePort::writeRegister(uint64_t address, uint32_t value, GError **error)
{
    return arv_device_write_register(m_device, address, value, error);
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

} // namespace OrvAravis

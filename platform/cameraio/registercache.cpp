// SPDX-License-Identifier: MIT
#include "registercache.h"

#include <algorithm>
#include <cstring>

namespace OrvCameraIo {

RegisterCache::RegisterCache(std::unique_ptr<RegisterPort> port) : m_port(std::move(port)) {}

void RegisterCache::forget(uint64_t address, uint64_t size, uint64_t moment)
{
    auto block = m_blocks.upper_bound(address);
    if (block != m_blocks.begin())
        --block;
    while (block != m_blocks.end() && block->first < address + size) {
        const bool overlaps = block->first + block->second.bytes.size() > address;
        if (overlaps && block->second.readAt < moment)
            block = m_blocks.erase(block);
        else
            ++block;
    }
}

void RegisterCache::forgetAll()
{
    m_blocks.clear();
}

const RegisterCache::Block *RegisterCache::covering(uint64_t address, uint32_t size) const
{
    // Exactly the block that was transferred: part of one could be cheaper to take, but a camera
    // may answer another register there.
    const auto block = m_blocks.find(address);
    return block != m_blocks.end() && block->second.bytes.size() == size ? &block->second : nullptr;
}

void RegisterCache::remember(uint64_t address, uint32_t size, const void *bytes)
{
    forget(address, size, now());
    const auto *source = static_cast<const uint8_t *>(bytes);
    m_blocks[address] = {std::vector<uint8_t>(source, source + size), m_clock};
}

bool RegisterCache::read(uint64_t address, uint32_t size, void *bytes, GError **error)
{
    if (const Block *block = covering(address, size)) {
        std::memcpy(bytes, block->bytes.data(), size);
        return true;
    }
    ++m_reads;
    if (!m_port->read(address, size, bytes, error))
        return false;
    remember(address, size, bytes);
    return true;
}

bool RegisterCache::write(uint64_t address, uint32_t size, const void *bytes, GError **error)
{
    ++m_writes;
    if (!m_port->write(address, size, bytes, error)) {
        forget(address, size, now());
        return false;
    }
    remember(address, size, bytes);
    return true;
}

bool RegisterCache::readRegister(uint64_t address, uint32_t *value, GError **error)
{
    if (const Block *block = covering(address, sizeof *value)) {
        uint32_t bigEndian = 0;
        std::memcpy(&bigEndian, block->bytes.data(), sizeof bigEndian);
        *value = GUINT32_FROM_BE(bigEndian);
        return true;
    }
    ++m_reads;
    if (!m_port->readRegister(address, value, error))
        return false;
    const uint32_t bigEndian = GUINT32_TO_BE(*value);
    remember(address, sizeof bigEndian, &bigEndian);
    return true;
}

bool RegisterCache::writeRegister(uint64_t address, uint32_t value, GError **error)
{
    ++m_writes;
    if (!m_port->writeRegister(address, value, error)) {
        forget(address, sizeof value, now());
        return false;
    }
    const uint32_t bigEndian = GUINT32_TO_BE(value);
    remember(address, sizeof bigEndian, &bigEndian);
    return true;
}

} // namespace OrvCameraIo

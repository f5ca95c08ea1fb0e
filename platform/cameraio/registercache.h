// SPDX-License-Identifier: MIT
#pragma once

#include "registerport.h"

#include <memory>

namespace OrvCameraIo {

/// Keeps what was read from a port until somebody says that it is outdated, and what was written.
///
/// Many nodes of a description share a register (bit fields, fields of structures); here they share
/// one transaction.
class RegisterCache : public RegisterPort
{
public:
    explicit RegisterCache(std::unique_ptr<RegisterPort> port);

    /// A moment that is later than everything read so far and earlier than everything read later.
    uint64_t now() { return ++m_clock; }

    /// Forgets what is known of these addresses from before `moment`.
    void forget(uint64_t address, uint64_t size, uint64_t moment);
    void forgetAll();

    /// Transactions with the port since the beginning.
    uint64_t reads() const { return m_reads; }
    uint64_t writes() const { return m_writes; }

    bool read(uint64_t address, uint32_t size, void *bytes, GError **error) override;
    bool write(uint64_t address, uint32_t size, const void *bytes, GError **error) override;
    bool readRegister(uint64_t address, uint32_t *value, GError **error) override;
    bool writeRegister(uint64_t address, uint32_t value, GError **error) override;

private:
    struct Block
    {
        std::vector<uint8_t> bytes;
        uint64_t readAt = 0;
    };

    const Block *covering(uint64_t address, uint32_t size) const;
    void remember(uint64_t address, uint32_t size, const void *bytes);

    std::unique_ptr<RegisterPort> m_port;
    std::map<uint64_t, Block> m_blocks; ///< by address; never overlapping
    uint64_t m_clock = 0;
    uint64_t m_reads = 0;
    uint64_t m_writes = 0;
};

} // namespace OrvCameraIo

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace OrvGenApi {

/// A register: where it lies, and how long it is in bytes.
struct RegisterRange
{
    uint64_t address = 0;
    uint32_t size = 0;

    bool operator==(const RegisterRange &other) const
    {
        return address == other.address && size == other.size;
    }
    bool operator<(const RegisterRange &other) const
    {
        return address != other.address ? address < other.address : size < other.size;
    }
};

/// A register that is to be written, whole or in part.
struct RegisterWrite
{
    uint64_t address = 0;
    std::vector<uint8_t> bytes;

    /// Which bits of `bytes` count; the others keep what the register holds. Empty for all of them.
    std::vector<uint8_t> mask;

    /// For a masked write: what was read of the register before this moment is outdated.
    uint64_t staleSince = 0;

    /// For a masked write: the register cannot be read, so the other bits become 0.
    bool isWriteOnly = false;

    /// False for a register that does not keep what is written: what it holds must be read.
    bool isKept = true;

    /// The name of the node, for messages; it lives as long as the node.
    std::string_view node = {};
};

} // namespace OrvGenApi

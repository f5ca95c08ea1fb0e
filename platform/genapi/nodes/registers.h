// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace OrvGenApi {

/// A register: its address and its length in bytes.
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

/// A write to a register, complete or partial.
struct RegisterWrite
{
    uint64_t address = 0;
    std::vector<uint8_t> bytes;

    /// The bits of `bytes` to write; the others keep their values. Empty for all of them.
    std::vector<uint8_t> mask;

    /// For a masked write: the time before which cached contents are too old.
    uint64_t staleSince = 0;

    /// For a masked write: the register cannot be read, so the other bits become 0.
    bool isWriteOnly = false;

    /// False for a register that may change what is written, so that it must be read back.
    bool isKept = true;

    /// The name of the node, for messages; owned by the node.
    std::string_view node = {};
};

} // namespace OrvGenApi

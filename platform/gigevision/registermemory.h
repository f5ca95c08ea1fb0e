// SPDX-License-Identifier: MIT
#pragma once

#include "gvcpchannel.h"

namespace OrvGigEVision {

/// Reads and writes registers of any address and length as memory, which cameras access in words of
/// 4 bytes and in blocks only. The range must end within 32 bits.
namespace RegisterMemory {

/// The words that contain a range. `end` may be 2^32.
struct Words
{
    uint64_t start;
    uint64_t end;

    uint32_t size() const { return static_cast<uint32_t>(end - start); }
};
Words wordsOf(const OrvCameraIo::RegisterRange &range);

OrvCameraIo::Status read(GvcpChannel &channel, const OrvCameraIo::RegisterRange &range,
                         std::vector<uint8_t> &bytes);

/// Reads the other bytes of the words first, and writes them back unchanged.
OrvCameraIo::Status write(GvcpChannel &channel, uint32_t address,
                          const std::vector<uint8_t> &bytes);

} // namespace RegisterMemory

} // namespace OrvGigEVision

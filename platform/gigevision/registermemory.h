// SPDX-License-Identifier: MIT
#pragma once

#include "gvcpchannel.h"

namespace OrvGigEVision {

/// Reads and writes registers of any address and length as memory, which cameras know in words of
/// 4 bytes and in blocks only. The range must end within 32 bits.
namespace RegisterMemory {

/// The words that a range lies in. `end` may be 2^32.
struct Words
{
    uint64_t start;
    uint64_t end;

    uint32_t size() const { return static_cast<uint32_t>(end - start); }
};
Words wordsOf(const OrvCameraIo::RegisterRange &range);

OrvCameraIo::Status read(GvcpChannel &channel, const OrvCameraIo::RegisterRange &range,
                         std::vector<uint8_t> &bytes);

/// What shares a word with the register is read first and stays as it is.
OrvCameraIo::Status write(GvcpChannel &channel, uint32_t address,
                          const std::vector<uint8_t> &bytes);

} // namespace RegisterMemory

} // namespace OrvGigEVision

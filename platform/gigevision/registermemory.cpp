// SPDX-License-Identifier: MIT
#include "registermemory.h"

#include <cameraio/limits.h>

#include <algorithm>

namespace OrvGigEVision::RegisterMemory {

using OrvCameraIo::RegisterRange;
using OrvCameraIo::Status;

Words wordsOf(const RegisterRange &range)
{
    return {range.address & ~uint64_t(3), (range.address + range.size + 3) & ~uint64_t(3)};
}

Status read(GvcpChannel &channel, const RegisterRange &range, std::vector<uint8_t> &bytes)
{
    const Words words = wordsOf(range);
    bytes.resize(words.size());
    for (uint32_t done = 0; done < words.size(); done += Gvcp::maxMemorySize) {
        const uint32_t size = std::min(Gvcp::maxMemorySize, words.size() - done);
        const auto reply = channel.readMemory(static_cast<uint32_t>(words.start + done), size,
                                              bytes.data() + done);
        if (!reply.isDone()) {
            bytes.clear();
            return reply.status;
        }
    }
    bytes.erase(bytes.begin(),
                bytes.begin() + static_cast<std::ptrdiff_t>(range.address - words.start));
    bytes.resize(range.size);
    return Status::Done;
}

Status write(GvcpChannel &channel, uint32_t address, const std::vector<uint8_t> &bytes)
{
    const auto deadline = [] { return Clock::now() + OrvCameraIo::Limits::writeBudget; };
    auto until = deadline();
    const auto size = static_cast<uint32_t>(bytes.size());
    const Words words = wordsOf({address, size});
    std::vector<uint8_t> data(words.size());
    const auto readWord = [&](uint64_t at) {
        return channel.readMemory(static_cast<uint32_t>(at), 4, data.data() + (at - words.start))
            .status;
    };
    const bool isFirstShared = address != words.start;
    const bool isLastShared = address + uint64_t(size) != words.end;
    Status status = Status::Done;
    if (isFirstShared || (isLastShared && words.size() == 4))
        status = readWord(words.start);
    if (status == Status::Done && isLastShared && words.size() > 4)
        status = readWord(words.end - 4);
    if (status != Status::Done)
        return status;

    std::copy(bytes.begin(), bytes.end(),
              data.begin() + static_cast<std::ptrdiff_t>(address - words.start));
    for (uint32_t done = 0; done < data.size(); done += Gvcp::maxMemorySize) {
        const uint32_t part = std::min(Gvcp::maxMemorySize, words.size() - done);
        const auto reply = channel.writeMemory(static_cast<uint32_t>(words.start + done),
                                               data.data() + done, part, until);
        if (!reply.isDone())
            return reply.status;
        until = deadline(); // each command has a budget of its own
    }
    return Status::Done;
}

} // namespace OrvGigEVision::RegisterMemory

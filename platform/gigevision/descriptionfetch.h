// SPDX-License-Identifier: MIT
#pragma once

#include "gvcpchannel.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace OrvGigEVision {

/// Identifies a camera's description without all of its bytes.
struct DescriptionMark
{
    std::string vendor;
    std::string model;
    std::string version;
    uint32_t urlRegister = 0;
    std::string url;
    std::string firstBlock;
    std::string lastBlock; ///< empty when the first one is all there is

    bool operator==(const DescriptionMark &other) const;
};

struct FetchedDescription
{
    enum class Failure { None, NoAnswer, Cancelled, Unusable };

    Failure failure = Failure::Unusable;
    std::string message; ///< why, in English

    /// Null when it failed. The text of another camera's description that is the same.
    std::shared_ptr<const std::string> text;
    DescriptionMark mark;
};

/// Reads the description of the camera, which says that it is `identity`: from where the first URL
/// points or, when that is of no use, the second. One that is kept and has not changed is not read
/// again but for its first and last block, and one that is read is kept.
FetchedDescription
fetchDescription(GvcpChannel &channel, const Gvcp::Identity &identity,
                 const std::function<void(std::size_t done, std::size_t total)> &progress,
                 const std::function<bool()> &isCancelled);

/// Whether the camera still has that description.
bool hasDescription(GvcpChannel &channel, const Gvcp::Identity &identity,
                    const DescriptionMark &mark, const std::function<bool()> &isCancelled);

} // namespace OrvGigEVision

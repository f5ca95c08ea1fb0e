// SPDX-License-Identifier: MIT
#pragma once

#include "gvcpchannel.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace OrvGigEVision {

/// A fingerprint of a camera's description, from a part of its bytes.
struct DescriptionMark
{
    std::string vendor;
    std::string model;
    std::string version;
    uint32_t urlRegister = 0;
    std::string url;
    std::string firstBlock;
    std::string lastBlock; ///< empty when there is only one block

    bool operator==(const DescriptionMark &other) const;
};

struct FetchedDescription
{
    enum class Failure { None, NoAnswer, Cancelled, Unusable };

    Failure failure = Failure::Unusable;
    std::string message; ///< the reason of a failure, in English

    /// Null on failure. Shared with other cameras that have the same description.
    std::shared_ptr<const std::string> text;
    DescriptionMark mark;
};

/// Reads the description of the camera with the given `identity`: from the location of the first
/// URL or, if that fails, the second. A stored description is verified by its first and last block
/// and not read again; a description that was read is stored.
FetchedDescription
fetchDescription(GvcpChannel &channel, const Gvcp::Identity &identity,
                 const std::function<void(std::size_t done, std::size_t total)> &progress,
                 const std::function<bool()> &isCancelled);

/// Whether the camera still has that description.
bool hasDescription(GvcpChannel &channel, const Gvcp::Identity &identity,
                    const DescriptionMark &mark, const std::function<bool()> &isCancelled);

} // namespace OrvGigEVision

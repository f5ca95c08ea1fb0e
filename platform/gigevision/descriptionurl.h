// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace OrvGigEVision {

/// The location of a description: "Local:NAME;ADDRESS;SIZE" in the URL registers of a camera.
struct DescriptionUrl
{
    std::string text; ///< the original text
    uint32_t address = 0;
    uint32_t size = 0; ///< from 1 to `Limits::downloadSize`

    /// The reason why the URL is unusable, in English; empty if it is usable.
    std::string problem;

    /// A location outside of the camera's own memory is a problem.
    static DescriptionUrl parse(const std::string &text);
};

/// A text of a camera for use in a message: truncated, and without control characters.
std::string quotable(const std::string &text);

} // namespace OrvGigEVision

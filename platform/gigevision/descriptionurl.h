// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace OrvGigEVision {

/// Where a camera holds its description: "Local:NAME;ADDRESS;SIZE", as its URL registers say.
struct DescriptionUrl
{
    std::string text; ///< as the camera has it
    uint32_t address = 0;
    uint32_t size = 0; ///< never 0, and within `Limits::downloadSize`

    /// Why it is of no use, in English; empty when it is fine.
    std::string problem;

    /// Anything that does not lie in the camera's own memory is a problem.
    static DescriptionUrl parse(const std::string &text);
};

/// A text of a camera as it can stand in a message: short, and without control characters.
std::string quotable(const std::string &text);

} // namespace OrvGigEVision

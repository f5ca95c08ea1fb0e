// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace OrvGigEVision {

/// Unpacks a description that is XML or a zip archive, which is recognised by its content.
struct UnpackedDescription
{
    std::string text; ///< XML by its first characters

    /// The reason of a failure, in English; empty on success.
    std::string problem;
};

/// An archive must contain one file, or one whose name ends in ".xml", and at most
/// `Limits::archiveEntries` in all. A file of more than `Limits::descriptionSize` is not unpacked.
UnpackedDescription unpackDescription(const std::string &bytes);

} // namespace OrvGigEVision

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace OrvGigEVision {

/// The text of a description that is XML or a zip archive, which is recognized by its content.
struct UnpackedDescription
{
    std::string text; ///< XML, at least it looks like it

    /// Why there is none, in English; empty when there is one.
    std::string problem;
};

/// An archive must hold one file, or one whose name ends in ".xml", and at most
/// `Limits::archiveEntries` in all. What would become longer than `Limits::descriptionSize` is not
/// unpacked.
UnpackedDescription unpackDescription(const std::string &bytes);

} // namespace OrvGigEVision

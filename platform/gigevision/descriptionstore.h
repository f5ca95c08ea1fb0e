// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace OrvGigEVision {

/// The descriptions that cameras have sent, stored in a folder so that they are not sent again.
///
/// Files that are damaged, belong to another user or only have a matching name count as missing.
/// Nothing throws, and failures to store are ignored. When there are more than
/// `Limits::keptDescriptions`, or they have more than `Limits::keptSize`, those used longest ago
/// are removed. No other files in the folder are changed.
class DescriptionStore
{
public:
    /// The key under which a description is stored.
    struct Key
    {
        std::string vendor;
        std::string model;
        std::string version;
        std::string url;
        uint32_t size = 0;
    };

    /// With an empty name there is no folder, and nothing is stored.
    explicit DescriptionStore(std::string folder) : m_folder(std::move(folder)) {}

    /// The user's store: in the folder of the environment variable ORVCAM_DESCRIPTION_CACHE or,
    /// without it, in "orvcameraapi" in the user's cache folder.
    static DescriptionStore ofUser();

    /// The `key.size` bytes as the camera has sent them; counts as use. The caller must verify that
    /// the camera still has the same.
    std::optional<std::string> find(const Key &key) const;

    void keep(const Key &key, const std::string &bytes) const;

private:
    const std::string m_folder;
};

} // namespace OrvGigEVision

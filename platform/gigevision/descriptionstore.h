// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace OrvGigEVision {

/// The descriptions that cameras have sent, kept in a folder so that they are not sent again.
///
/// Files that are damaged, that belong to another user or whose name fits by chance only count as
/// missing. Nothing throws, and what cannot be kept is not. When there are more than
/// `Limits::keptDescriptions`, or they hold more than `Limits::keptSize`, those used longest ago
/// are removed. No other files in the folder are touched.
class DescriptionStore
{
public:
    /// What a description is kept for.
    struct Key
    {
        std::string vendor;
        std::string model;
        std::string version;
        std::string url;
        uint32_t size = 0;
    };

    /// With an empty name there is no folder, and nothing is kept.
    explicit DescriptionStore(std::string folder) : m_folder(std::move(folder)) {}

    /// The user's: in the folder that ORVCAM_DESCRIPTION_CACHE names, without that variable in
    /// "orvcameraapi" below the user's folder for such things.
    static DescriptionStore ofUser();

    /// The `key.size` bytes as the camera has sent them, which counts as use. Whether it would send
    /// the same is for the caller to find out.
    std::optional<std::string> find(const Key &key) const;

    void keep(const Key &key, const std::string &bytes) const;

private:
    const std::string m_folder;
};

} // namespace OrvGigEVision

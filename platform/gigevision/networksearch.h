// SPDX-License-Identifier: MIT
#pragma once

#include "discovery.h"

#include <map>

namespace OrvGigEVision {

/// Finds the cameras on the network adapters of this machine. A call for one adapter searches all
/// of them, so that calls for one after the other take no longer than one call. Not thread-safe.
class NetworkSearch
{
public:
    /// The results of the last search for that adapter. Starts a new search, which takes the given
    /// time, when they have been returned already, when that search was shorter, or when it is too
    /// old. Empty when there is no such adapter any more.
    AdapterCameras camerasOf(const std::string &adapterName, std::chrono::milliseconds time);

private:
    void search(std::chrono::milliseconds time);
    bool isNew(std::chrono::milliseconds time) const;

    std::map<std::string, AdapterCameras> m_found; ///< by the adapter's name; removed when returned
    std::chrono::milliseconds m_time{0};
    Clock::time_point m_end;
};

} // namespace OrvGigEVision

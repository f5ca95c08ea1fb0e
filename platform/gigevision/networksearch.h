// SPDX-License-Identifier: MIT
#pragma once

#include "discovery.h"

#include <map>

namespace OrvGigEVision {

/// Finds the cameras behind the network adapters of this machine. Who asks for the cameras of one
/// adapter has them looked for behind all of them, so that asking for one after the other takes no
/// longer than for one. For one thread at a time.
class NetworkSearch
{
public:
    /// What the last search has found behind that adapter, unless that has been returned already,
    /// or that search was shorter or ended a while ago: then there is a new one, which takes so
    /// long. Empty when there is no such adapter any more.
    AdapterCameras camerasOf(const std::string &adapterName, std::chrono::milliseconds time);

private:
    void search(std::chrono::milliseconds time);
    bool isNew(std::chrono::milliseconds time) const;

    std::map<std::string, AdapterCameras> m_found; ///< by the adapter's name, until returned
    std::chrono::milliseconds m_time{0};
    Clock::time_point m_end;
};

} // namespace OrvGigEVision

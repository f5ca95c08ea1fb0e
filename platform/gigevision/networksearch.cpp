// SPDX-License-Identifier: MIT
#include "networksearch.h"

namespace OrvGigEVision {

namespace {

/// The time after which results of a search are too old.
constexpr std::chrono::milliseconds newFor{500};

} // namespace

bool NetworkSearch::isNew(std::chrono::milliseconds time) const
{
    return time <= m_time && Clock::now() - m_end < newFor;
}

void NetworkSearch::search(std::chrono::milliseconds time)
{
    m_found.clear();
    for (AdapterCameras &found : discoverCameras(networkAdapters(), time)) {
        const std::string name = found.adapter.name;
        m_found[name] = std::move(found);
    }
    m_time = time;
    m_end = Clock::now();
}

AdapterCameras NetworkSearch::camerasOf(const std::string &adapterName,
                                        std::chrono::milliseconds time)
{
    if (!isNew(time) || m_found.count(adapterName) == 0)
        search(time);
    const auto found = m_found.find(adapterName);
    if (found == m_found.end())
        return {};
    AdapterCameras cameras = std::move(found->second);
    m_found.erase(found);
    return cameras;
}

} // namespace OrvGigEVision

// SPDX-License-Identifier: MIT
#include "base/selectorsinuse.h"

#include <mutex>
#include <set>

namespace OrvGui {

namespace {

struct Users
{
    std::mutex mutex;
    std::multiset<const GenApi::INodeMap *> maps;
};

Users &users()
{
    static Users all;
    return all;
}

} // namespace

SelectorsInUse::SelectorsInUse(const GenApi::INodeMap *map) : m_map(map)
{
    const std::lock_guard<std::mutex> lock(users().mutex);
    users().maps.insert(map);
}

SelectorsInUse::~SelectorsInUse()
{
    const std::lock_guard<std::mutex> lock(users().mutex);
    users().maps.erase(users().maps.find(m_map));
}

bool SelectorsInUse::isOf(const GenApi::INodeMap *map)
{
    const std::lock_guard<std::mutex> lock(users().mutex);
    return users().maps.count(map) > 0;
}

} // namespace OrvGui

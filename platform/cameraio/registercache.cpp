// SPDX-License-Identifier: MIT
#include "registercache.h"

#include <algorithm>

namespace OrvCameraIo {

const RegisterCache::Entry *RegisterCache::find(const RegisterRange &range) const
{
    const auto found = m_entries.find(range);
    return found == m_entries.end() ? nullptr : &found->second;
}

void RegisterCache::store(const RegisterRange &range, Entry entry)
{
    m_longest = std::max(m_longest, range.size);
    m_entries[range] = std::move(entry);
}

void RegisterCache::forgetOverlapping(const RegisterRange &range)
{
    const uint64_t first = range.address > m_longest ? range.address - m_longest : 0;
    auto entry = m_entries.lower_bound({first, 0});
    while (entry != m_entries.end() && entry->first.address - first < m_longest + range.size) {
        const RegisterRange &other = entry->first;
        const bool overlaps = other.address >= range.address
                                  ? other.address - range.address < range.size
                                  : range.address - other.address < other.size;
        entry = overlaps ? m_entries.erase(entry) : std::next(entry);
    }
}

void RegisterCache::forgetUnanswered(const std::set<RegisterRange> &refused)
{
    for (auto entry = m_entries.begin(); entry != m_entries.end();) {
        const bool isUnanswered = entry->second.status == Status::NoAnswer;
        if (isUnanswered && refused.count(entry->first) == 0) {
            entry = m_entries.erase(entry);
            continue;
        }
        if (isUnanswered)
            entry->second.status = Status::Failed;
        ++entry;
    }
}

void RegisterCache::clear()
{
    m_entries.clear();
}

} // namespace OrvCameraIo

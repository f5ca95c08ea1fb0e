// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace OrvCam {

/// A list that callers get and release; `List` is its interface.
template<class List, class Entry>
class EntryList final : public List
{
public:
    explicit EntryList(std::vector<Entry *> entries) : m_entries(std::move(entries)) {}

    uint32_t GetCount() const override { return static_cast<uint32_t>(m_entries.size()); }

    Entry *GetFirst() override
    {
        m_next = 0;
        return GetNext();
    }

    Entry *GetNext() override { return m_next < m_entries.size() ? m_entries[m_next++] : nullptr; }

    void Release() override { delete this; }

private:
    const std::vector<Entry *> m_entries;
    std::size_t m_next = 0;
};

} // namespace OrvCam

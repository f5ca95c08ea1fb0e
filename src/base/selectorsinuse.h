// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/INodeMap.h>

#include <QtGlobal>

namespace OrvGui {

/// Marks the selectors of a node map as being moved by a thread that lets other threads access the
/// node map in between. While an instance exists, code on the GUI thread must not move selectors or
/// show features that depend on them.
class SelectorsInUse
{
public:
    explicit SelectorsInUse(const GenApi::INodeMap *map);
    ~SelectorsInUse();
    Q_DISABLE_COPY(SelectorsInUse)

    /// Thread-safe.
    static bool isOf(const GenApi::INodeMap *map);

private:
    const GenApi::INodeMap *const m_map;
};

} // namespace OrvGui

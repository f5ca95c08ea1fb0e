// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/INodeMap.h>

#include <QtGlobal>

namespace OrvGui {

/// While one exists, a thread moves the selectors of a node map, and lets others look at it in
/// between. Code that moves selectors on the GUI thread, or shows what depends on them, waits for
/// the end.
class SelectorsInUse
{
public:
    explicit SelectorsInUse(const GenApi::INodeMap *map);
    ~SelectorsInUse();
    Q_DISABLE_COPY(SelectorsInUse)

    /// May be called on any thread.
    static bool isOf(const GenApi::INodeMap *map);

private:
    const GenApi::INodeMap *const m_map;
};

} // namespace OrvGui

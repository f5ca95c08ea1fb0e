// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace OrvGui {

/// While one exists, notifications on this thread mean nothing: a selector of the camera has been
/// moved to read something else, and is moved back before anything else happens.
///
/// A widget that shows features that depend on a selector checks `isUnderWay` when it is notified,
/// and keeps what it shows. Otherwise an open editor would be filled with values of the other
/// selection, or lose the focus, and write what it holds to the wrong place. Run no event loop
/// during a detour.
class SelectorDetour
{
public:
    SelectorDetour();
    ~SelectorDetour();
    Q_DISABLE_COPY(SelectorDetour)

    static bool isUnderWay();
};

} // namespace OrvGui

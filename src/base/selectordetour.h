// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace OrvGui {

/// While one exists, notifications on this thread mean nothing: somebody has moved a selector of
/// the camera to look at something else, and moves it back before anything else happens.
///
/// Whatever shows features that depend on a selector asks `isUnderWay` when it is notified, and
/// leaves what it shows alone. Otherwise an open editor would be filled with values of the other
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

// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace OrvGui {

/// While an instance exists, notifications on this thread are to be ignored: a selector of the
/// camera is moved temporarily to read other values, and is restored before anything else happens.
///
/// A widget that shows features that depend on a selector checks `isUnderWay` in its notification
/// handler, and does not update while it is true. Otherwise an open editor would show values of the
/// other selection, or lose the focus and write its value to the wrong selection. Do not run an
/// event loop while an instance exists.
class SelectorDetour
{
public:
    SelectorDetour();
    ~SelectorDetour();
    Q_DISABLE_COPY(SelectorDetour)

    static bool isUnderWay();
};

} // namespace OrvGui

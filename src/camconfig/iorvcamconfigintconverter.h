// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

namespace OrvGenParam {
class Int;
}

namespace OrvGui {

/// Translates between an integer of the camera and the number that a widget shows for it, for
/// instance between lines and microseconds.
///
/// Implement it where a binding of `OrvCamConfigMapper` needs another unit than the camera's. The
/// mapper does not own it; it must outlive the binding. Called on the GUI thread, whenever the
/// widget is refreshed or edited. Neither operation may throw.
class ORVCAMERAGUIAPI_EXPORT IOrvCamConfigIntConverter
{
public:
    /// What the widget shows for a value, a limit or the increment of the parameter.
    virtual long ToControl(long value, OrvGenParam::Int *param) = 0;

    /// What is written to the camera for a number of the widget.
    virtual long ToDevice(long value, OrvGenParam::Int *param) = 0;

    // After the two, whose places in the table of operations hosts count on.
    virtual ~IOrvCamConfigIntConverter() = default;
};

} // namespace OrvGui

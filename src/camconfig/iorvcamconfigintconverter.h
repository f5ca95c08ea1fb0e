// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

namespace OrvGenParam {
class Int;
}

namespace OrvGui {

/// Converts between an integer of the camera and the number that a widget shows for it, for
/// instance between lines and microseconds.
///
/// Implement it where a binding of `OrvCamConfigMapper` needs a unit other than the camera's. The
/// mapper does not own the converter, which must outlive the binding. Called on the GUI thread
/// whenever the widget is refreshed or edited. Neither function may throw.
class ORVCAMERAGUIAPI_EXPORT IOrvCamConfigIntConverter
{
public:
    /// The number in the widget for a value, a limit or the increment of the parameter.
    virtual long ToControl(long value, OrvGenParam::Int *param) = 0;

    /// The value to write to the camera for a number in the widget.
    virtual long ToDevice(long value, OrvGenParam::Int *param) = 0;

    // Last, because hosts depend on the vtable slots of the other two.
    virtual ~IOrvCamConfigIntConverter() = default;
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <QString>

namespace OrvCam {
class DeviceInfo;
class System;
} // namespace OrvCam

namespace OrvGui {

/// Lets the user pick a camera of the system, in a modal `OrvCameraSelectorDialog` of that title
/// above the window of that native id, 0 for none. Makes the application when there is none.
///
/// Returns the camera, which belongs to the system and is not opened yet, or null when the user
/// cancels.
ORVCAMERAGUIAPI_EXPORT OrvCam::DeviceInfo *
SelectCamera(OrvCam::System *system, const QString &title, unsigned long parentWindow);

} // namespace OrvGui

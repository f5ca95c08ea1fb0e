// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <QString>

namespace OrvCam {
class DeviceInfo;
class System;
} // namespace OrvCam

namespace OrvGui {

/// Lets the user pick a camera of the system in a modal `OrvCameraSelectorDialog` of that title,
/// above the window with that native id (0 for none). Creates the application when there is none.
///
/// Returns the record of the camera, which belongs to the system and is not open yet, or null when
/// the user cancels.
///
/// Must be called on the GUI thread: that of the application or, without one, the thread that makes
/// all calls. Blocks until the user has decided, and runs an event loop for that time.
ORVCAMERAGUIAPI_EXPORT OrvCam::DeviceInfo *
SelectCamera(OrvCam::System *system, const QString &title, unsigned long parentWindow);

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>

namespace OrvGui {

/// The two functions of the camera access library that the windows call. In a build against a
/// genuine GenICam SDK that library is the host's: the functions are looked up in the process when
/// they are needed, so that a program that only shows trees needs none.
namespace CameraLibrary {

/// As `OrvCam_GetSystem`; null without a camera access library, too.
OrvCam::System *system();

/// As `OrvCam_CreateDevice`; `OrvCam::ErrorFailed` without a camera access library.
OrvCam::Device *createDevice(OrvCam::DeviceInfo &camera, int32_t *error, int32_t accessMode);

/// False when a function is missing.
bool isPresent();

} // namespace CameraLibrary
} // namespace OrvGui

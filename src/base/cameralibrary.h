// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>

namespace OrvGui {

/// The two functions of the camera access library that the windows call. In a build against a
/// GenICam SDK the host brings that library: the functions are then looked up in the process on
/// first use, and a program that only shows trees does not need the library.
namespace CameraLibrary {

/// As `OrvCam_GetSystem`; also null without a camera access library.
OrvCam::System *system();

/// As `OrvCam_CreateDevice`; `OrvCam::ErrorFailed` without a camera access library.
OrvCam::Device *createDevice(OrvCam::DeviceInfo &camera, int32_t *error, int32_t accessMode);

/// False when a function is missing.
bool isPresent();

} // namespace CameraLibrary
} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/port.h>

#include <memory>
#include <string>

typedef struct _ArvDevice ArvDevice;
typedef struct _GError GError;

namespace OrvAravis {

/// Prevents Aravis from writing to the standard error output; relevant errors are reported as a
/// status. The environment variable with which users request Aravis's messages still works. Call it
/// before any other function of Aravis; it may be called repeatedly.
void quieten();

/// Frees the error; null means success.
OrvCameraIo::Status takeStatus(GError *error);

/// False when the device is known not to have control of its camera, so that it can only read.
bool isController(ArvDevice *device);

/// Adds a reference to a device.
std::shared_ptr<ArvDevice> shared(ArvDevice *device);

/// The device's GenICam description; null when it has none.
std::shared_ptr<const std::string> descriptionOf(ArvDevice *device);

} // namespace OrvAravis

// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/port.h>

#include <memory>
#include <string>

typedef struct _ArvDevice ArvDevice;
typedef struct _GError GError;

namespace OrvAravis {

/// Keeps Aravis from writing to the standard error output; what matters to us becomes a status. The
/// variable with which users ask for its messages keeps its effect. To be called before anything
/// else of Aravis, any number of times.
void quieten();

/// Frees the error; null means success.
OrvCameraIo::Status takeStatus(GError *error);

/// False when it is known that the device has no control of its camera, so that it can only read.
bool isController(ArvDevice *device);

/// Another reference to a device.
std::shared_ptr<ArvDevice> shared(ArvDevice *device);

/// The device's GenICam description; null when it has none.
std::shared_ptr<const std::string> descriptionOf(ArvDevice *device);

} // namespace OrvAravis

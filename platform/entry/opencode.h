// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/openfailure.h>

#include <cstdint>

namespace OrvCam {

/// The error code of a camera that cannot be opened; `Success` for none.
int32_t codeOf(OrvCameraIo::OpenFailure failure);

} // namespace OrvCam

// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/openfailure.h>
#include <cameraio/port.h>

#include <memory>
#include <string>
#include <vector>

namespace OrvAravis {

/// A USB3 Vision camera of this machine. Texts that the camera lacks are empty.
struct UsbCamera
{
    std::string id; ///< never changes for one camera
    std::string vendor;
    std::string model;
    std::string serial;
};

std::vector<UsbCamera> findUsbCameras();

struct OpenedUsbCamera
{
    /// `Busy` for every refusal, because USB gives no reason.
    using Failure = OrvCameraIo::OpenFailure;

    Failure failure = Failure::Gone;
    std::unique_ptr<OrvCameraIo::Port> port;        ///< null on failure
    std::shared_ptr<const std::string> description; ///< null on failure
};

/// `id` is a `UsbCamera::id`. Thread-safe.
OpenedUsbCamera openUsbCamera(const std::string &id);

} // namespace OrvAravis

// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/openfailure.h>
#include <cameraio/port.h>

#include <memory>
#include <string>
#include <vector>

namespace OrvAravis {

/// A USB3 Vision camera of this machine. What it does not say is empty.
struct UsbCamera
{
    std::string id; ///< the same for one camera at all times
    std::string vendor;
    std::string model;
    std::string serial;
};

std::vector<UsbCamera> findUsbCameras();

struct OpenedUsbCamera
{
    using Failure = OrvCameraIo::OpenFailure; ///< `Busy` for every refusal: USB does not say why

    Failure failure = Failure::Gone;
    std::unique_ptr<OrvCameraIo::Port> port;        ///< null when it failed
    std::shared_ptr<const std::string> description; ///< likewise
};

/// `id` is a `UsbCamera::id`. May be called on any thread.
OpenedUsbCamera openUsbCamera(const std::string &id);

} // namespace OrvAravis

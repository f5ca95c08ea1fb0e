// SPDX-License-Identifier: MIT
#pragma once

#include "cameranetwork.h"

#include <OrvCam.h>
#include <OrvGenParam.h>

#include <fstream>
#include <functional>
#include <sstream>

/// A GigE Vision camera on a cable of its own, found by the camera access library. For tests that
/// run in a network namespace.
struct WireCamera
{
    using Adjust = std::function<void(TestCamera::Settings &)>;

    /// Uses the simulated camera's description unless `adjust` sets another one.
    explicit WireCamera(const char *descriptionFile, const Adjust &adjust)
    {
        qputenv("ORVCAM_DESCRIPTION_CACHE", "");
        TestCamera::Settings settings = network.cameraSettings(0x020000000001, "10.1.0.2");
        std::ostringstream description;
        description << std::ifstream(descriptionFile).rdbuf();
        settings.description = description.str();
        settings.unknownRegisters = TestCameraMemory::Unknown::Zero; // of the other frame
        adjust(settings);
        camera = std::make_unique<TestCamera>(settings);
        QElapsedTimer timer;
        timer.start();
        while (!find()) {
            if (timer.hasExpired(15000))
                qFatal("The camera does not come up");
        }
    }

    OrvCam::Released<OrvCam::Device> open() const
    {
        return OrvCam::Released<OrvCam::Device>(
            OrvCam_CreateDevice(info, nullptr, OrvCam::AccessControl));
    }

    TestCamera *operator->() const { return camera.get(); }

    CameraNetwork network{"orv0", "10.1.0.1/24", "10.1.0.2/24"};
    std::unique_ptr<TestCamera> camera;
    const OrvCam::Released<OrvCam::System> system{OrvCam_GetSystem()};
    OrvCam::DeviceInfo *info = nullptr;

private:
    bool find()
    {
        OrvCam_RefreshDevices(system.get(), 200);
        info = OrvCam_GetDeviceInfo(system.get(), 0);
        return info != nullptr;
    }
};

// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <cameraapi/cameradevice.h>

#include <atomic>
#include <memory>
#include <random>

/// A simulated camera that can be unplugged and plugged in, and whose features change continuously.
class SoakCamera
{
public:
    /// Plugs the camera in with its initial state, as after a power cycle.
    void plugIn() { *m_isPlugged = true; }
    void unplug() { *m_isPlugged = false; }

    /// The camera as a device for the windows; the caller releases it.
    OrvCam::Device *open();

    /// Writes a random value to a random feature of the device.
    static void changeSomething(OrvCam::Device &device, std::mt19937 &random);

private:
    using Switch = std::shared_ptr<std::atomic<bool>>;
    class Port;
    class Connection;
    class Connector;
    class Info;

    const Switch m_isPlugged = std::make_shared<std::atomic<bool>>(true);
};

// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <cameraapi/cameradevice.h>

#include <atomic>
#include <memory>
#include <random>

/// A simulated camera that can be unplugged and plugged in, and whose features change all the time
/// by themselves.
class SoakCamera
{
public:
    /// Like a camera that has been off in between: everything is as when it is new.
    void plugIn() { *m_isPlugged = true; }
    void unplug() { *m_isPlugged = false; }

    /// The camera as the windows see it; the caller releases it.
    OrvCam::Device *open();

    /// Writes something into some feature of the device.
    static void changeSomething(OrvCam::Device &device, std::mt19937 &random);

private:
    using Switch = std::shared_ptr<std::atomic<bool>>;
    class Port;
    class Connection;
    class Connector;
    class Info;

    const Switch m_isPlugged = std::make_shared<std::atomic<bool>>(true);
};

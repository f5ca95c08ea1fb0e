// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <cameraapi/cameradevice.h>
#include <simulation/simulatedcamera.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <random>

/// A simulated camera that can be unplugged and plugged in, and whose features somebody else
/// changes all the time.
///
/// Belongs to the GUI thread; only `connect` is for the device's own thread.
class SoakCamera
{
public:
    SoakCamera() { plugIn(); }

    /// Like a camera that has been off in between: everything is as when it is new.
    void plugIn();
    void unplug() { m_isPlugged = false; }
    bool isPlugged() const { return m_isPlugged; }

    /// The camera as the windows see it; the caller releases it.
    OrvCam::Device *open();

    /// Writes something into some feature of the device.
    static void changeSomething(OrvCam::Device &device, std::mt19937 &random);

private:
    class Connection;
    class Connector;
    class Info;

    std::unique_ptr<OrvCam::CameraConnection> connect(int32_t &error);

    std::atomic<bool> m_isPlugged{false};
    std::mutex m_mutex; ///< guards what follows
    std::unique_ptr<OrvSimulation::SimulatedCamera> m_camera;
};

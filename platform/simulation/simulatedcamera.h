// SPDX-License-Identifier: MIT
#pragma once

#include "simulation/cameraidentity.h"

#include <GenApi/Types.h>

#include <cameraio/port.h>

#include <memory>
#include <string>

namespace OrvSimulation {

/// A camera that lives in this process: registers, a GenICam description, and a life of its own.
///
/// Use it wherever a camera is wanted and none is at hand. Its registers are reached through ports
/// as a real camera's are, so everything above them works as with a real one. As long as the object
/// or a port of it exists, the camera is open, and time passes in it whenever the default GLib main
/// context runs: its temperature drifts, white balance follows the scene, bursts end.
///
/// Cameras with different serial numbers are independent of each other. All functions may be called
/// on any thread.
class SimulatedCamera
{
public:
    /// Opens the camera with the serial number of \a identity.
    ///
    /// \throw GenICam::InvalidArgumentException the serial number is empty
    /// \throw GenICam::AccessException a camera with this serial number is open already
    explicit SimulatedCamera(const CameraIdentity &identity = CameraIdentity());
    ~SimulatedCamera();

    SimulatedCamera(const SimulatedCamera &) = delete;
    SimulatedCamera &operator=(const SimulatedCamera &) = delete;

    /// A way to the registers; there may be several. The camera has carried out what a write
    /// commands before it acknowledges it.
    std::unique_ptr<OrvCameraIo::Port> port() const;

    /// Who the camera is: what it was made with, whatever has been written to it since.
    const CameraIdentity &identity() const;

    /// Lets \a seconds pass in the camera, without waiting for the clock.
    void advance(double seconds);

    /// Whether a camera with this serial number is open in this process.
    static bool isOpen(const std::string &serial);

    /// The GenICam description that every simulated camera hands out, XML in UTF-8.
    static std::shared_ptr<const std::string> description();

private:
    class Innards;
    class Connection;

    const std::shared_ptr<Innards> d; ///< shared with the ports
};

} // namespace OrvSimulation

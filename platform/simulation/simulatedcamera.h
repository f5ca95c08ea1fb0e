// SPDX-License-Identifier: MIT
#pragma once

#include "simulation/cameraidentity.h"

#include <GenApi/Types.h>

#include <cameraio/port.h>

#include <memory>
#include <string>

namespace OrvSimulation {

/// A camera inside this process: registers, a GenICam description, and behaviour.
///
/// Use it in place of a real camera. Its registers are accessed through ports like those of a real
/// camera, so all layers above work in the same way. While the object or a port of it exists, the
/// camera is open, and its time passes whenever the default GLib main context runs: its temperature
/// drifts, white balance follows the scene, bursts end.
///
/// Cameras with different serial numbers are independent of each other. All functions are
/// thread-safe.
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

    /// Creates a port to the registers; there may be several. The camera executes a command before
    /// it acknowledges the write.
    std::unique_ptr<OrvCameraIo::Port> port() const;

    /// The identity with which the camera was created, independent of later writes.
    const CameraIdentity &identity() const;

    /// Advances the time in the camera by \a seconds, without waiting.
    void advance(double seconds);

    /// Whether a camera with this serial number is open in this process.
    static bool isOpen(const std::string &serial);

    /// The GenICam description of every simulated camera, XML in UTF-8.
    static std::shared_ptr<const std::string> description();

private:
    class Private;
    class Connection;

    const std::shared_ptr<Private> d; ///< shared with the ports
};

} // namespace OrvSimulation

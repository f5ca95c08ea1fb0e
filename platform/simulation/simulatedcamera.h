// SPDX-License-Identifier: MIT
#pragma once

#include "OrvCam/Export.h"
#include "simulation/cameraidentity.h"

#include <cstddef>
#include <memory>

typedef struct _ArvDevice ArvDevice;

namespace OrvSimulation {

/// A camera that lives in this process: registers, a GenICam description, and a life of its own.
///
/// Use it wherever a device of Aravis is wanted and no camera is at hand. It is Aravis's fake
/// device with a description and start values of ours, so everything above it works as with a real
/// camera. As long as the object exists, time passes in the camera whenever the default GLib main
/// context runs: its temperature drifts, white balance follows the scene, bursts and commands end.
///
/// Cameras with different serial numbers are independent of each other. All calls belong to the
/// thread that runs the default main context; the device itself may be used from any thread.
class ORVCAMERAAPI_EXPORT SimulatedCamera
{
public:
    /// Bytes of a text that live as long as the program.
    struct Text
    {
        const char *data; ///< ends with a 0 that \c size does not count
        std::size_t size;
    };

    /// Opens the camera with the serial number of \a identity.
    ///
    /// \throw GenICam::InvalidArgumentException the serial number is empty
    /// \throw GenICam::AccessException a camera with this serial number is open already
    /// \throw GenICam::RuntimeException Aravis could not make the device
    explicit SimulatedCamera(const CameraIdentity &identity = CameraIdentity());

    /// Closes the camera. A device that somebody else still holds a reference to stays readable,
    /// but nothing happens in it any more.
    ~SimulatedCamera();

    SimulatedCamera(const SimulatedCamera &) = delete;
    SimulatedCamera &operator=(const SimulatedCamera &) = delete;

    /// The device, owned by the camera; never null.
    ArvDevice *device() const;

    /// Who the camera is: what it was made with, whatever has been written to it since.
    const CameraIdentity &identity() const;

    /// Lets \a seconds pass in the camera, without waiting for the clock.
    ///
    /// Commands that the host has written are carried out first; `advance(0)` does only that. Call
    /// it after a command whose result is wanted at once.
    void advance(double seconds);

    /// Whether a camera with this serial number is open in this process.
    static bool isOpen(const std::string &serial);

    /// The GenICam description that every simulated camera hands out, XML in UTF-8.
    static Text description();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace OrvSimulation

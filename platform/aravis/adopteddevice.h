// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/port.h>

#include <memory>
#include <string>

typedef struct _ArvDevice ArvDevice;

namespace OrvAravis {

/// A device that the host has opened with Aravis and continues to use. The host keeps control and
/// the stream; this class uses the registers and holds a reference to the device. Thread-safe.
class AdoptedDevice
{
public:
    enum class Kind { GigEVision, Usb3Vision, Other };

    /// The identity of the camera; a text is empty if the camera lacks it or does not answer.
    struct Identity
    {
        std::string id; ///< the MAC address, or vendor and serial number
        std::string vendor;
        std::string model;
        std::string serial;
        std::string version;
        std::string userName;
    };

    explicit AdoptedDevice(ArvDevice *device);

    ArvDevice *get() const { return m_device.get(); }
    Kind kind() const;

    /// False while another program has control of the camera.
    bool isController() const;

    /// Reads the identity from the camera.
    Identity identity() const;

    /// The GenICam description; null if the device has none.
    std::shared_ptr<const std::string> description() const;

    std::unique_ptr<OrvCameraIo::Port> openPort() const;

private:
    std::shared_ptr<ArvDevice> m_device;
};

} // namespace OrvAravis

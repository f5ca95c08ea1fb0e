// SPDX-License-Identifier: MIT
#include "usbcameras.h"

#include "arvport.h"
#include "arvsupport.h"

#include <arv.h>

#include <algorithm>
#include <mutex>

namespace OrvAravis {

namespace {

using Failure = OpenedUsbCamera::Failure;

/// Aravis has one list of USB cameras without a lock, and devices reconnect on their own threads.
/// Only this interface is searched; a search by Aravis as a whole would include all networks.
std::mutex usbMutex;

std::string text(const char *text)
{
    return text ? text : "";
}

/// Precondition: the caller holds the lock.
std::vector<UsbCamera> present(ArvInterface *usb)
{
    arv_interface_update_device_list(usb);
    std::vector<UsbCamera> cameras;
    for (unsigned i = 0; i < arv_interface_get_n_devices(usb); ++i) {
        cameras.push_back({text(arv_interface_get_device_id(usb, i)),
                           text(arv_interface_get_device_vendor(usb, i)),
                           text(arv_interface_get_device_model(usb, i)),
                           text(arv_interface_get_device_serial_nbr(usb, i))});
    }
    return cameras;
}

/// Returns null, and the reason in `failure`, on failure.
std::shared_ptr<ArvDevice> openDevice(const std::string &id, Failure &failure)
{
    const std::lock_guard<std::mutex> lock(usbMutex);
    ArvInterface *usb = arv_uv_interface_get_instance();
    const std::vector<UsbCamera> cameras = present(usb);
    failure = Failure::Gone;
    if (std::none_of(cameras.begin(), cameras.end(),
                     [&](const UsbCamera &camera) { return camera.id == id; }))
        return nullptr;

    GError *error = nullptr;
    ArvDevice *device = arv_interface_open_device(usb, id.c_str(), &error);
    if (device && !error) {
        failure = Failure::None;
        return {device, g_object_unref};
    }
    const bool hasNoDescription =
        g_error_matches(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_GENICAM_NOT_FOUND);
    failure = hasNoDescription ? Failure::BadDescription : Failure::Busy;
    g_clear_error(&error);
    g_clear_object(&device);
    return nullptr;
}

/// Returns null when the camera is not connected, or when another one is.
std::shared_ptr<ArvDevice> reopenDevice(const std::string &id, const std::string &description)
{
    Failure failure = Failure::None;
    std::shared_ptr<ArvDevice> device = openDevice(id, failure);
    const auto found = device ? descriptionOf(device.get()) : nullptr;
    return found && *found == description ? device : nullptr;
}

} // namespace

std::vector<UsbCamera> findUsbCameras()
{
    quieten();
    const std::lock_guard<std::mutex> lock(usbMutex);
    return present(arv_uv_interface_get_instance());
}

OpenedUsbCamera openUsbCamera(const std::string &id)
{
    quieten();
    OpenedUsbCamera opened;
    std::shared_ptr<ArvDevice> device = openDevice(id, opened.failure);
    if (!device)
        return opened;
    const auto description = descriptionOf(device.get());
    if (!description) {
        opened.failure = Failure::BadDescription;
        return opened;
    }
    opened.description = description;
    opened.port = std::make_unique<ArvPort>(
        std::move(device), [id, description] { return reopenDevice(id, *description); });
    return opened;
}

} // namespace OrvAravis

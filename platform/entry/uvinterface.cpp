// SPDX-License-Identifier: MIT
#include "uvinterface.h"

#include "arvconnection.h"

#include <arv.h>

#include <mutex>
#include <set>

using namespace OrvCam;

namespace OrvAravis {

namespace {

/// Aravis keeps one list of USB cameras and no lock for it; devices come back on their own threads.
/// Only this interface is asked, never Aravis as a whole, which would search all networks too.
std::mutex usbMutex;

std::optional<std::string> textOrNothing(const char *text)
{
    return text && *text ? std::make_optional<std::string>(text) : std::nullopt;
}

/// The caller holds the lock.
std::set<std::string> presentIds(ArvInterface *usb)
{
    arv_interface_update_device_list(usb);
    std::set<std::string> ids;
    for (unsigned i = 0; i < arv_interface_get_n_devices(usb); ++i)
        ids.insert(arv_interface_get_device_id(usb, i));
    return ids;
}

class UvConnector final : public CameraConnector
{
public:
    explicit UvConnector(std::string id) : m_id(std::move(id)) {}

    std::unique_ptr<CameraConnection> open(int32_t, int32_t &error) override
    {
        const std::lock_guard<std::mutex> lock(usbMutex);
        ArvInterface *usb = arv_uv_interface_get_instance();
        error = ErrorGone;
        if (presentIds(usb).count(m_id) == 0)
            return nullptr;

        GError *failure = nullptr;
        ArvDevice *device = arv_interface_open_device(usb, m_id.c_str(), &failure);
        if (!device || failure) {
            g_clear_object(&device);
            error = codeOfOpenError(failure);
            // USB does not say that a camera is taken, only that it cannot be had.
            if (error == ErrorFailed)
                error = ErrorBusy;
            return nullptr;
        }
        try {
            auto connection = std::make_unique<ArvConnection>(device);
            error = Success;
            return connection;
        } catch (const GenICam::GenericException &) {
            error = ErrorBadDescription;
            return nullptr;
        }
    }

private:
    const std::string m_id;
};

} // namespace

UvInterface::UvInterface(CameraSystem &system)
    : CameraInterface(system, "USB3 Vision", TransportUsb3Vision)
{
}

int32_t UvInterface::discover(uint32_t, std::vector<DeviceFacts> &found)
{
    const std::lock_guard<std::mutex> lock(usbMutex);
    ArvInterface *usb = arv_uv_interface_get_instance();
    arv_interface_update_device_list(usb);
    for (unsigned i = 0; i < arv_interface_get_n_devices(usb); ++i) {
        DeviceFacts facts;
        facts.id = arv_interface_get_device_id(usb, i);
        facts.vendor = textOrNothing(arv_interface_get_device_vendor(usb, i));
        facts.model = textOrNothing(arv_interface_get_device_model(usb, i));
        facts.serial = textOrNothing(arv_interface_get_device_serial_nbr(usb, i));
        facts.accessState = AccessReadWrite;
        found.push_back(std::move(facts));
    }
    return Success;
}

std::shared_ptr<CameraConnector> UvInterface::makeConnector(const DeviceFacts &facts)
{
    return std::make_shared<UvConnector>(facts.id);
}

} // namespace OrvAravis

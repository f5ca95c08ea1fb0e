// SPDX-License-Identifier: MIT
#include "gvconnector.h"

#include "arvconnection.h"
#include "gvcontrol.h"

#include <arv.h>

#include <algorithm>
#include <chrono>
#include <optional>

using namespace std::chrono;
using namespace OrvCam;

namespace OrvAravis {

namespace {

/// For a camera that is there, but slow.
constexpr milliseconds patience{500};

/// How long a camera may be silent before it counts as lost: what Aravis asks cameras to grant us.
constexpr milliseconds heartbeat{3000};

/// One look at a camera that is expected to answer.
constexpr milliseconds glance{250};

class GvConnection final : public ArvConnection
{
public:
    GvConnection(ArvDevice *device, NetworkAdapter adapter, uint32_t camera, bool hasControl)
        : ArvConnection(device)
        , m_adapter(std::move(adapter))
        , m_camera(camera)
        , m_hasControl(hasControl)
    {
    }

    void abandon() override
    {
        auto *camera = ARV_GV_DEVICE(device());
        if (arv_gv_device_is_controller(camera))
            arv_gv_device_leave_control(camera, nullptr);
    }

protected:
    bool answers() override
    {
        const auto answer =
            readRegister(m_adapter, m_camera, Gvcp::controlPrivilegeRegister, glance);
        if (!answer)
            return steady_clock::now() - m_lastAnswer < heartbeat;
        m_lastAnswer = steady_clock::now();
        // A camera that was switched off and on between two looks does not know us any more.
        return !m_hasControl || answer->status != Gvcp::StatusSuccess ||
               (answer->value & Gvcp::controlPrivilegeMask) != 0;
    }

private:
    const NetworkAdapter m_adapter;
    const uint32_t m_camera;
    const bool m_hasControl;
    steady_clock::time_point m_lastAnswer = steady_clock::now();
};

std::optional<NetworkAdapter> adapterCalled(const std::string &name)
{
    std::vector<NetworkAdapter> all = networkAdapters();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const auto &a) { return a.name == name; });
    return found == all.end() ? std::nullopt : std::make_optional(std::move(*found));
}

/// Why the camera cannot be opened at this moment, or `Success`.
int32_t obstacle(const NetworkAdapter &adapter, uint32_t camera, int32_t accessMode)
{
    const auto answer = readRegister(adapter, camera, Gvcp::controlPrivilegeRegister, patience);
    if (!answer)
        return ErrorGone;
    if (answer->status == Gvcp::StatusAccessDenied)
        return ErrorBusy; // exclusive control keeps even readers out
    const bool isTaken =
        answer->status == Gvcp::StatusSuccess && (answer->value & Gvcp::controlPrivilegeMask);
    return isTaken && accessMode == AccessControl ? ErrorBusy : Success;
}

/// The caller owns the device; null with the reason in `error`.
ArvDevice *openDevice(uint32_t own, uint32_t camera, int32_t accessMode, int32_t &error)
{
    GInetAddress *ownAddress = g_inet_address_new_from_string(ipText(own).c_str());
    GInetAddress *cameraAddress = g_inet_address_new_from_string(ipText(camera).c_str());
    GError *failure = nullptr;
    ArvDevice *device = arv_gv_device_new(ownAddress, cameraAddress, &failure);
    g_object_unref(ownAddress);
    g_object_unref(cameraAddress);
    if (!device || failure) {
        g_clear_object(&device);
        error = codeOfOpenError(failure);
        return nullptr;
    }

    auto *gvDevice = ARV_GV_DEVICE(device);
    if (accessMode == AccessMonitor) {
        if (arv_gv_device_is_controller(gvDevice))
            arv_gv_device_leave_control(gvDevice, nullptr);
    } else if (!arv_gv_device_is_controller(gvDevice)) {
        g_object_unref(device);
        error = ErrorBusy; // somebody was faster
        return nullptr;
    }
    error = Success;
    return device;
}

} // namespace

GvConnector::GvConnector(std::string adapterName, std::string cameraId)
    : m_adapterName(std::move(adapterName)), m_cameraId(std::move(cameraId))
{
}

std::unique_ptr<CameraConnection> GvConnector::open(int32_t accessMode, int32_t &error)
{
    error = ErrorGone;
    const auto adapter = adapterCalled(m_adapterName);
    if (!adapter)
        return nullptr;
    const auto camera = findCamera(*adapter, m_cameraId, patience);
    if (!camera)
        return nullptr;
    const uint32_t ip = camera->identity.ip;
    const auto *own = adapter->addressFor(ip);
    if (!own) {
        error = ErrorWrongSubnet;
        return nullptr;
    }
    error = obstacle(*adapter, ip, accessMode);
    if (error != Success)
        return nullptr;

    ArvDevice *device = openDevice(own->ip, ip, accessMode, error);
    if (!device)
        return nullptr;
    try {
        return std::make_unique<GvConnection>(device, *adapter, ip, accessMode == AccessControl);
    } catch (const GenICam::GenericException &) {
        error = ErrorBadDescription;
        return nullptr;
    }
}

} // namespace OrvAravis

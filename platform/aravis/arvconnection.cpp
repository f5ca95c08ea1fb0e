// SPDX-License-Identifier: MIT
#include "arvconnection.h"

#include <arv.h>

#include <thread>

namespace OrvAravis {

namespace {

using Flag = std::shared_ptr<std::atomic<bool>>;

void controlLost(ArvDevice *, void *data)
{
    **static_cast<Flag *>(data) = true;
}

void destroyFlag(void *data, GClosure *)
{
    delete static_cast<Flag *>(data);
}

} // namespace

void ArvConnection::Unref::operator()(ArvDevice *device) const
{
    if (isInBackground)
        std::thread([device] { g_object_unref(device); }).detach();
    else
        g_object_unref(device);
}

ArvConnection::ArvConnection(ArvDevice *device)
    : m_device(device)
    , m_nodeMap(NodeMap::open(device))
    , m_isControlLost(std::make_shared<std::atomic<bool>>(false))
{
    // Emitted on a thread of the device, possibly while this object goes.
    m_signal = g_signal_connect_data(device, "control-lost", G_CALLBACK(controlLost),
                                     new Flag(m_isControlLost), destroyFlag, GConnectFlags(0));
}

ArvConnection::~ArvConnection()
{
    g_signal_handler_disconnect(m_device.get(), m_signal);
}

bool ArvConnection::isAlive()
{
    const bool isFine = !*m_isControlLost && answers();
    m_device.get_deleter().isInBackground = !isFine;
    return isFine;
}

int32_t codeOfOpenError(GError *error)
{
    if (!error)
        return OrvCam::ErrorFailed;
    const int code = error->domain == ARV_DEVICE_ERROR ? error->code : -1;
    g_error_free(error);
    switch (code) {
    case ARV_DEVICE_ERROR_GENICAM_NOT_FOUND:
        return OrvCam::ErrorBadDescription;
    case ARV_DEVICE_ERROR_TIMEOUT:
    case ARV_DEVICE_ERROR_NOT_CONNECTED:
    case ARV_DEVICE_ERROR_NOT_FOUND:
        return OrvCam::ErrorGone;
    case ARV_DEVICE_ERROR_NOT_CONTROLLER:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY:
        return OrvCam::ErrorBusy;
    default:
        return OrvCam::ErrorFailed;
    }
}

} // namespace OrvAravis

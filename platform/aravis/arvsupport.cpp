// SPDX-License-Identifier: MIT
#include "arvsupport.h"

#include <arv.h>

using OrvCameraIo::Status;

namespace OrvAravis {

namespace {

Status statusOf(int deviceError)
{
    switch (deviceError) {
    case ARV_DEVICE_ERROR_TIMEOUT:
    case ARV_DEVICE_ERROR_NOT_CONNECTED:
    case ARV_DEVICE_ERROR_TRANSFER_ERROR:
        return Status::NoAnswer;
    case ARV_DEVICE_ERROR_NOT_CONTROLLER:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY:
        return Status::AccessDenied;
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_BAD_ALIGNMENT:
        return Status::InvalidAddress;
    case ARV_DEVICE_ERROR_INVALID_PARAMETER:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_PARAMETER:
        return Status::InvalidParameter;
    default:
        return Status::Failed;
    }
}

} // namespace

void quieten()
{
    static const bool done = [] {
        if (!g_getenv("ARV_DEBUG"))
            arv_debug_enable("all:0");
        return true;
    }();
    static_cast<void>(done);
}

Status takeStatus(GError *error)
{
    if (!error)
        return Status::Done;
    const Status status =
        error->domain == ARV_DEVICE_ERROR ? statusOf(error->code) : Status::Failed;
    g_error_free(error);
    return status;
}

bool isController(ArvDevice *device)
{
    return !ARV_IS_GV_DEVICE(device) || arv_gv_device_is_controller(ARV_GV_DEVICE(device));
}

std::shared_ptr<ArvDevice> shared(ArvDevice *device)
{
    return {ARV_DEVICE(g_object_ref(device)), g_object_unref};
}

std::shared_ptr<const std::string> descriptionOf(ArvDevice *device)
{
    std::size_t size = 0;
    const char *xml = arv_device_get_genicam_xml(device, &size);
    return xml ? std::make_shared<const std::string>(xml, size) : nullptr;
}

} // namespace OrvAravis

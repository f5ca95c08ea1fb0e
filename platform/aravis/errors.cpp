// SPDX-License-Identifier: MIT
#include "errors.h"

#include <Base/GCException.h>

#include <arv.h>

namespace OrvAravis {

namespace {

enum class Kind { Runtime, Access, Range, Timeout };

Kind kindOfDeviceError(int code)
{
    switch (code) {
    case ARV_DEVICE_ERROR_TIMEOUT:
    case ARV_DEVICE_ERROR_NOT_CONNECTED:
        return Kind::Timeout;
    case ARV_DEVICE_ERROR_NOT_CONTROLLER:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY:
        return Kind::Access;
    case ARV_DEVICE_ERROR_INVALID_PARAMETER:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_PARAMETER:
        return Kind::Range;
    default:
        return Kind::Runtime;
    }
}

Kind kindOfGenicamError(int code)
{
    switch (code) {
    case ARV_GC_ERROR_READ_ONLY:
        return Kind::Access;
    case ARV_GC_ERROR_OUT_OF_RANGE:
    case ARV_GC_ERROR_INVALID_LENGTH:
    case ARV_GC_ERROR_ENUM_ENTRY_NOT_FOUND:
        return Kind::Range;
    default:
        return Kind::Runtime;
    }
}

} // namespace

void throwIfFailed(GError *error, const std::string &context)
{
    if (!error)
        return;
    const std::string text = context + ": " + error->message;
    Kind kind = Kind::Runtime;
    if (error->domain == ARV_DEVICE_ERROR)
        kind = kindOfDeviceError(error->code);
    else if (error->domain == ARV_GC_ERROR)
        kind = kindOfGenicamError(error->code);
    g_error_free(error);

    switch (kind) {
    case Kind::Access:
        throw GenICam::AccessException(text.c_str(), __FILE__, __LINE__);
    case Kind::Range:
        throw GenICam::OutOfRangeException(text.c_str(), __FILE__, __LINE__);
    case Kind::Timeout:
        throw GenICam::TimeoutException(text.c_str(), __FILE__, __LINE__);
    case Kind::Runtime:
        break;
    }
    throw GenICam::RuntimeException(text.c_str(), __FILE__, __LINE__);
}

} // namespace OrvAravis

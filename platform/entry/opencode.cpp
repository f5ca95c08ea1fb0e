// SPDX-License-Identifier: MIT
#include "opencode.h"

#include <OrvCam.h>

using OrvCameraIo::OpenFailure;

int32_t OrvCam::codeOf(OpenFailure failure)
{
    switch (failure) {
    case OpenFailure::None:
        return Success;
    case OpenFailure::Gone:
        return ErrorGone;
    case OpenFailure::WrongSubnet:
        return ErrorWrongSubnet;
    case OpenFailure::Busy:
        return ErrorBusy;
    case OpenFailure::BadDescription:
        return ErrorBadDescription;
    default:
        return ErrorFailed;
    }
}

// SPDX-License-Identifier: MIT
#include "referenceguard.h"

#include <Base/GCException.h>

#include <cameraio/limits.h>

namespace Limits = OrvCameraIo::Limits;

namespace OrvDescription {

namespace {

thread_local int depth = 0;
thread_local int steps = 0; ///< since the depth was last 0

} // namespace

ReferenceGuard::ReferenceGuard()
{
    if (depth == 0)
        steps = 0;
    if (depth >= Limits::referenceDepth || steps >= Limits::referenceSteps)
        throw GenICam::RuntimeException("The references of the description lead too far", __FILE__,
                                        __LINE__);
    ++depth;
    ++steps;
}

ReferenceGuard::~ReferenceGuard()
{
    --depth;
}

} // namespace OrvDescription

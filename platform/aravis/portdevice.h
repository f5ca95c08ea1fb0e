// SPDX-License-Identifier: MIT
#pragma once

#include "registerport.h"

namespace OrvAravis {

/// A device for Aravis's engine whose registers are those of `port`, which must outlive it. The
/// caller owns the reference.
ArvDevice *newPortDevice(RegisterPort *port);

} // namespace OrvAravis

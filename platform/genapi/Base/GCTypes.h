// SPDX-License-Identifier: MIT
#pragma once

// Symbols of the GenICam base and GenApi layers in libOrvCameraApi.
#ifndef GENAPI_DECL
#define GENAPI_DECL __attribute__((visibility("default")))
#endif

namespace GenICam_3_0 {
}

// Clients write only the alias, so that they compile against every release of the interfaces.
namespace GenICam = GenICam_3_0;

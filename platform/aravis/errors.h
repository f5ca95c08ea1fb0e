// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <string>

namespace OrvAravis {

/// Throws the GenICam exception that fits an Aravis error, its text preceded by `context` (a
/// node's name, a camera, a file). Frees the error. Does nothing when `error` is null.
void throwIfFailed(GError *error, const std::string &context);

} // namespace OrvAravis

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace OrvCam {

/// Valid UTF-8 of what a camera has sent: each byte that is part of no character becomes U+FFFD.
std::string validUtf8(const std::string &bytes);

} // namespace OrvCam

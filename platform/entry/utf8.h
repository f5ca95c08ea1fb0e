// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace OrvCam {

/// Valid UTF-8 of what a camera has sent: each byte that is part of no character becomes U+FFFD.
std::string validUtf8(const std::string &bytes);

/// Copies the characters that have room, in whole, and a 0. Does nothing without room for the 0.
void copyUtf8(const std::string &text, char *to, std::size_t size);

} // namespace OrvCam

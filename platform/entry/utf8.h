// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace OrvCam {

/// Makes bytes from a camera valid UTF-8: each byte that is not part of a character becomes U+FFFD.
std::string validUtf8(const std::string &bytes);

/// Copies as many whole characters as fit, and a 0. Does nothing without room for the 0.
void copyUtf8(const std::string &text, char *to, std::size_t size);

} // namespace OrvCam

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// The bytes of simulatedcamera.xml, followed by a 0, and their number without that 0.
extern const unsigned char simulatedCameraDescription[];
extern const std::size_t simulatedCameraDescriptionSize;

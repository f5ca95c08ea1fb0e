// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// A zip archive with one deflated file, as cameras hold their descriptions.
std::string zipped(const std::string &fileName, const std::string &contents);

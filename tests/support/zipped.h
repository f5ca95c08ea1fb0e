// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

/// A zip archive with these files, as cameras store their descriptions.
std::string zipped(const std::vector<std::pair<std::string, std::string>> &files,
                   bool isEncrypted = false);

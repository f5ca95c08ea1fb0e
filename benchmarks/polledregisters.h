// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>

/// The registers that a description declares as polled, by address, each with its
/// period in milliseconds. Those whose address is computed are left out.
std::map<uint32_t, int> polledRegisters(const std::string &description);

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>

/// The registers that a description declares as polled: address and period in milliseconds.
/// Registers with a computed address are left out.
std::map<uint32_t, int> polledRegisters(const std::string &description);

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Ends the fuzzer, which then keeps its input, when something is not as it must be.
inline void check(bool holds, const char *otherwise)
{
    if (holds)
        return;
    std::fprintf(stderr, "fault: %s\n", otherwise);
    std::abort();
}

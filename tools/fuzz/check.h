// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Ends the fuzzer with a crash, which makes it keep its input, unless `holds` is true.
inline void check(bool holds, const char *otherwise)
{
    if (holds)
        return;
    std::fprintf(stderr, "fault: %s\n", otherwise);
    std::abort();
}

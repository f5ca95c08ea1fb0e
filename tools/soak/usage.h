// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// What this process holds.
struct Usage
{
    long heap = 0;     ///< KiB that are allocated
    long resident = 0; ///< KiB of memory
    long files = 0;    ///< open ones, sockets and pipes too
    long threads = 0;

    static Usage now();

    std::string text() const;

    /// What has grown since `before` more than such a number of rounds explains; empty when nothing
    /// has.
    std::string grownBeyond(const Usage &before, int rounds) const;
};

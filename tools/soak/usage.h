// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The resources of this process.
struct Usage
{
    long heap = 0;     ///< KiB allocated
    long resident = 0; ///< KiB resident
    long files = 0;    ///< open files, sockets and pipes
    long threads = 0;

    static Usage now();

    std::string text() const;

    /// Describes the growth since `before` that exceeds the limits for that number of rounds; empty
    /// if there is none.
    std::string grownBeyond(const Usage &before, int rounds) const;
};

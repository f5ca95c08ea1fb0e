// SPDX-License-Identifier: MIT
#include "usage.h"

#include <malloc.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

// What may grow is what fills the caches that have a limit: fonts' glyphs and shapes, colour
// gradients (60 of 12 KiB each), names. A camera that is not freed is about 2 MiB a round, a window
// some hundred KiB, one of its pictures a MiB.
const long heapPerRound = 4;
const long heapOnce = 1024;

// Memory that is free but in pieces is resident as well.
const long residentPerRound = 16;
const long residentOnce = 16 * 1024;

} // namespace

Usage Usage::now()
{
    malloc_trim(0);
    Usage usage;
    const struct mallinfo2 allocated = mallinfo2();
    usage.heap = static_cast<long>((allocated.uordblks + allocated.hblkhd) / 1024);

    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    usage.resident = pages * sysconf(_SC_PAGESIZE) / 1024;

    const auto entries = [](const char *folder) {
        const std::filesystem::directory_iterator all(folder);
        return std::distance(begin(all), end(all));
    };
    usage.threads = entries("/proc/self/task");
    usage.files = entries("/proc/self/fd") - 1; // without the one that reads this
    return usage;
}

std::string Usage::text() const
{
    return std::to_string(heap) + " KiB allocated, " + std::to_string(resident) +
           " KiB resident, " + std::to_string(files) + " open files, " + std::to_string(threads) +
           " threads";
}

std::string Usage::grownBeyond(const Usage &before, int rounds) const
{
    std::string what;
    const auto compare = [&](const char *name, long growth, long limit) {
        if (growth > limit)
            what += std::string(what.empty() ? "" : ", ") + name + " by " + std::to_string(growth) +
                    " (limit " + std::to_string(limit) + ")";
    };
    compare("allocated KiB", heap - before.heap, heapOnce + heapPerRound * rounds);
    compare("resident KiB", resident - before.resident, residentOnce + residentPerRound * rounds);
    compare("open files", files - before.files, 0);
    compare("threads", threads - before.threads, 0);
    return what;
}

// SPDX-License-Identifier: MIT
#include "usage.h"

#include <malloc.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

// The permitted growth is that of bounded caches: glyphs and shapes of fonts, colour gradients (60
// of 12 KiB each), names. A leaked camera is about 2 MiB a round, a leaked window some hundred KiB,
// and one of its pictures a MiB.
const long heapPerRound = 4;
const long heapOnce = 1024;

// Fragmented free memory is resident as well.
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
    usage.files = entries("/proc/self/fd") - 1; // without the directory that is being listed
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

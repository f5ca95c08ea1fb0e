// SPDX-License-Identifier: MIT
#include "descriptionstore.h"

#include <cameraio/limits.h>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iterator>
#include <memory>
#include <tuple>
#include <vector>

namespace OrvGigEVision {

namespace Limits = OrvCameraIo::Limits;

namespace {

constexpr char magic[] = "OrvCamera description 1\n";

/// The age in seconds at which an incomplete file counts as abandoned.
constexpr std::time_t abandonedAfter = 3600;

class FileDescriptor
{
public:
    explicit FileDescriptor(int number) : m_number(number) {}
    ~FileDescriptor()
    {
        if (m_number >= 0)
            close(m_number);
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;

    operator int() const { return m_number; }

private:
    const int m_number;
};

uint64_t checksum(const std::string &bytes)
{
    uint64_t sum = 0xCBF29CE484222325; // FNV-1a
    for (const char byte : bytes)
        sum = (sum ^ static_cast<uint8_t>(byte)) * 0x100000001B3;
    return sum;
}

std::string hexadecimal(uint64_t number)
{
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(number));
    return text;
}

/// The parts with their lengths, so that different keys have different texts.
std::string keyText(const DescriptionStore::Key &key)
{
    std::string text;
    for (const std::string &part :
         {key.vendor, key.model, key.version, key.url, std::to_string(key.size)})
        text += std::to_string(part.size()) + ' ' + part + '\n';
    return text;
}

std::string fileName(const DescriptionStore::Key &key)
{
    return hexadecimal(checksum(keyText(key)));
}

/// The beginning of a file with that description.
std::string headerText(const DescriptionStore::Key &key, const std::string &bytes)
{
    return magic + keyText(key) + hexadecimal(checksum(bytes)) + '\n';
}

void makeFolders(const std::string &path)
{
    for (std::size_t at = path.find('/', 1); at != std::string::npos; at = path.find('/', at + 1))
        mkdir(path.substr(0, at).c_str(), 0700);
    mkdir(path.c_str(), 0700);
}

/// -1 unless the directory belongs to this user and is not a link of another one.
int openFolder(const std::string &path)
{
    struct stat link = {};
    if (path.empty() || lstat(path.c_str(), &link) != 0 || link.st_uid != geteuid())
        return -1;
    const int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    struct stat facts = {};
    if (folder >= 0 && (fstat(folder, &facts) != 0 || facts.st_uid != geteuid())) {
        close(folder);
        return -1;
    }
    return folder;
}

/// Empty unless the file has exactly that size and belongs to this user.
std::optional<std::string> contentsOf(int file, std::size_t size)
{
    struct stat facts = {};
    if (fstat(file, &facts) != 0 || !S_ISREG(facts.st_mode) || facts.st_uid != geteuid() ||
        static_cast<uint64_t>(facts.st_size) != size)
        return std::nullopt;
    std::string bytes(size, '\0');
    std::size_t done = 0;
    while (done < size) {
        const ssize_t now = read(file, &bytes[done], size - done);
        if (now < 0 && errno == EINTR)
            continue;
        if (now <= 0)
            return std::nullopt;
        done += static_cast<std::size_t>(now);
    }
    return bytes;
}

bool writeAll(int file, const std::string &bytes)
{
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t now = write(file, bytes.data() + done, bytes.size() - done);
        if (now < 0 && errno == EINTR)
            continue;
        if (now <= 0)
            return false;
        done += static_cast<std::size_t>(now);
    }
    return true;
}

struct KeptFile
{
    std::string name;
    uint64_t size;
    timespec lastUse;

    bool operator<(const KeptFile &other) const // the most recently used one first
    {
        return std::tie(other.lastUse.tv_sec, other.lastUse.tv_nsec, other.name) <
               std::tie(lastUse.tv_sec, lastUse.tv_nsec, name);
    }
};

bool isName(const std::string &name)
{
    return name.size() == 16 && name.find_first_not_of("0123456789abcdef") == std::string::npos;
}

/// The name of a file that is being written.
bool isTemporaryName(const std::string &name)
{
    return name.size() > 18 && name[0] == '.' && isName(name.substr(1, 16)) && name[17] == '.' &&
           name.find_first_not_of("0123456789.", 17) == std::string::npos;
}

/// The folder may contain files of other programs.
bool isDescription(int folder, const std::string &name)
{
    const FileDescriptor file(
        openat(folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    char start[sizeof magic - 1];
    return file >= 0 && read(file, start, sizeof start) == sizeof start &&
           std::equal(std::begin(start), std::end(start), magic);
}

/// The descriptions in the folder. Abandoned incomplete files are removed.
std::vector<KeptFile> keptFiles(int folder)
{
    std::vector<KeptFile> files;
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(
        fdopendir(openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)), closedir);
    while (const dirent *entry = entries ? readdir(entries.get()) : nullptr) {
        const std::string name = entry->d_name;
        struct stat facts = {};
        if ((!isName(name) && !isTemporaryName(name)) ||
            fstatat(folder, name.c_str(), &facts, AT_SYMLINK_NOFOLLOW) != 0 ||
            !S_ISREG(facts.st_mode) || facts.st_uid != geteuid())
            continue;
        if (isName(name))
            files.push_back({name, static_cast<uint64_t>(facts.st_size), facts.st_mtim});
        else if (facts.st_mtim.tv_sec + abandonedAfter < std::time(nullptr))
            unlinkat(folder, name.c_str(), 0);
    }
    return files;
}

/// Removes files beyond the limits. A process that is reading one of them is not affected.
void prune(int folder, const std::string &newest)
{
    std::vector<KeptFile> files = keptFiles(folder);
    std::sort(files.begin(), files.end());
    uint64_t size = 0;
    std::size_t count = 0;
    for (const KeptFile &file : files) {
        size += file.size;
        const bool fits = ++count <= Limits::keptDescriptions && size <= Limits::keptSize;
        if (!fits && file.name != newest && isDescription(folder, file.name))
            unlinkat(folder, file.name.c_str(), 0);
    }
}

} // namespace

DescriptionStore DescriptionStore::ofUser()
{
    // A setuid program must not write to a folder that its user has named.
    if (const char *named = secure_getenv("ORVCAM_DESCRIPTION_CACHE"))
        return DescriptionStore(named);
    const char *cache = secure_getenv("XDG_CACHE_HOME");
    if (cache && cache[0] == '/')
        return DescriptionStore(std::string(cache) + "/orvcameraapi");
    const char *home = secure_getenv("HOME");
    if (home && home[0] == '/')
        return DescriptionStore(std::string(home) + "/.cache/orvcameraapi");
    return DescriptionStore(std::string());
}

std::optional<std::string> DescriptionStore::find(const Key &key) const
{
    const FileDescriptor folder(openFolder(m_folder));
    if (folder < 0)
        return std::nullopt;
    const FileDescriptor file(
        openat(folder, fileName(key).c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file < 0)
        return std::nullopt;
    const std::size_t headerSize = headerText(key, std::string()).size();
    const auto contents = contentsOf(file, headerSize + key.size);
    if (!contents)
        return std::nullopt;
    std::string bytes = contents->substr(headerSize);
    if (contents->compare(0, headerSize, headerText(key, bytes)) != 0)
        return std::nullopt;
    futimens(file, nullptr);
    return bytes;
}

void DescriptionStore::keep(const Key &key, const std::string &bytes) const
{
    static std::atomic<unsigned> count{0};
    if (m_folder.empty() || bytes.size() != key.size)
        return;
    makeFolders(m_folder);
    const FileDescriptor folder(openFolder(m_folder));
    if (folder < 0)
        return;

    const std::string name = fileName(key);
    const std::string temporary =
        '.' + name + '.' + std::to_string(getpid()) + '.' + std::to_string(count++);
    bool isWritten = false;
    {
        const FileDescriptor file(openat(
            folder, temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (file < 0)
            return;
        isWritten = writeAll(file, headerText(key, bytes)) && writeAll(file, bytes);
    }
    if (!isWritten || renameat(folder, temporary.c_str(), folder, name.c_str()) != 0)
        unlinkat(folder, temporary.c_str(), 0);
    prune(folder, name);
}

} // namespace OrvGigEVision

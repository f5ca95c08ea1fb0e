// SPDX-License-Identifier: MIT
#include "descriptionunpacker.h"

#include <cameraio/limits.h>

#include <zip.h>

#include <algorithm>
#include <cctype>
#include <memory>
#include <vector>

namespace OrvGigEVision {

namespace {

namespace Limits = OrvCameraIo::Limits;

constexpr zip_uint64_t neededFacts = ZIP_STAT_NAME | ZIP_STAT_INDEX | ZIP_STAT_SIZE;

struct Closer
{
    void operator()(zip_t *archive) const { zip_discard(archive); }
    void operator()(zip_file_t *file) const { zip_fclose(file); }
};
using Archive = std::unique_ptr<zip_t, Closer>;

bool startsWith(const std::string &bytes, const std::string &start)
{
    return bytes.compare(0, start.size(), start) == 0;
}

bool looksLikeXml(const std::string &bytes)
{
    // UTF-16 begins with a byte order mark, UTF-8 may begin with one.
    if (startsWith(bytes, "\xFE\xFF") || startsWith(bytes, "\xFF\xFE"))
        return true;
    const auto first =
        bytes.find_first_not_of(" \t\r\n", startsWith(bytes, "\xEF\xBB\xBF") ? 3 : 0);
    return first != std::string::npos && bytes[first] == '<';
}

UnpackedDescription xmlText(std::string bytes, const std::string &otherwise)
{
    if (!looksLikeXml(bytes))
        return {std::string(), otherwise};
    // Cameras pad their memory. The second half of the last UTF-16 character may be 0, however.
    const bool isWide = startsWith(bytes, "\xFE\xFF") || startsWith(bytes, "\xFF\xFE");
    const auto last = bytes.find_last_not_of('\0');
    const auto length = last == std::string::npos ? 0 : last + 1;
    bytes.resize(std::min(bytes.size(), isWide ? (length + 1) & ~std::size_t(1) : length));
    return {std::move(bytes), std::string()};
}

bool isXmlName(std::string name)
{
    static const std::string ending = ".xml";
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return name.size() >= ending.size() &&
           name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
}

/// True when the directory may have too many entries. Counts the signatures of entries, because the
/// number in the archive may be wrong.
bool hasManyEntries(const std::string &bytes)
{
    static const std::string mark = "PK\1\2";
    std::size_t count = 0;
    for (auto at = bytes.find(mark); at != std::string::npos; at = bytes.find(mark, at + 1)) {
        if (++count > Limits::archiveEntries)
            return true;
    }
    return false;
}

Archive openArchive(const std::string &bytes)
{
    zip_source_t *source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr);
    if (!source)
        return nullptr;
    Archive archive(zip_open_from_source(source, ZIP_RDONLY, nullptr));
    if (!archive)
        zip_source_free(source);
    return archive;
}

/// The files in the archive without folders; nothing if one of them is invalid.
std::vector<zip_stat_t> filesIn(zip_t *archive)
{
    std::vector<zip_stat_t> files;
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        zip_stat_t facts;
        if (zip_stat_index(archive, static_cast<zip_uint64_t>(i), ZIP_FL_ENC_RAW, &facts) != 0 ||
            (facts.valid & neededFacts) != neededFacts)
            return {};
        const std::string name = facts.name;
        if (name.empty() || name.back() != '/')
            files.push_back(facts);
    }
    return files;
}

UnpackedDescription unpackFile(zip_t *archive, const zip_stat_t &facts)
{
    if (facts.size > Limits::descriptionSize)
        return {std::string(), "The camera's description would be too long unpacked."};
    if ((facts.valid & ZIP_STAT_ENCRYPTION_METHOD) && facts.encryption_method != ZIP_EM_NONE)
        return {std::string(), "The camera's description is encrypted."};

    const std::string damaged = "The camera's description is a damaged zip archive.";
    const std::unique_ptr<zip_file_t, Closer> file(zip_fopen_index(archive, facts.index, 0));
    if (!file)
        return {std::string(), damaged};
    // Allocated step by step, because the size in the archive may be wrong.
    std::string text;
    std::vector<char> part(64 << 10);
    zip_int64_t size = 0;
    while ((size = zip_fread(file.get(), part.data(), part.size())) > 0) {
        text.append(part.data(), static_cast<std::size_t>(size));
        if (text.size() > facts.size)
            return {std::string(), damaged};
    }
    if (size < 0 || text.size() != facts.size)
        return {std::string(), damaged};
    return xmlText(std::move(text), "The camera's zip archive holds no description.");
}

} // namespace

UnpackedDescription unpackDescription(const std::string &bytes)
{
    if (!startsWith(bytes, "PK"))
        return xmlText(bytes, "The camera's description is neither XML nor a zip archive.");
    if (hasManyEntries(bytes))
        return {std::string(), "The camera's zip archive holds too many files."};
    const Archive archive = openArchive(bytes);
    if (!archive)
        return {std::string(), "The camera's description is a damaged zip archive."};
    const std::vector<zip_stat_t> files = filesIn(archive.get());
    if (files.empty())
        return {std::string(), "The camera's zip archive is empty."};
    if (files.size() == 1)
        return unpackFile(archive.get(), files.front());

    const auto isXml = [](const zip_stat_t &facts) { return isXmlName(facts.name); };
    if (std::count_if(files.begin(), files.end(), isXml) != 1)
        return {std::string(), "The camera's zip archive holds several files."};
    return unpackFile(archive.get(), *std::find_if(files.begin(), files.end(), isXml));
}

} // namespace OrvGigEVision

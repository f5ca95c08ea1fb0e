// SPDX-License-Identifier: MIT
#include "zipped.h"

#include <zip.h>

std::string zipped(const std::vector<std::pair<std::string, std::string>> &files, bool isEncrypted)
{
    zip_source_t *target = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_source_keep(target);
    zip_t *zip = zip_open_from_source(target, ZIP_TRUNCATE, nullptr);
    for (const auto &[name, contents] : files) {
        zip_source_t *source = zip_source_buffer(zip, contents.data(), contents.size(), 0);
        const auto index = zip_file_add(zip, name.c_str(), source, 0);
        if (isEncrypted)
            zip_file_set_encryption(zip, static_cast<zip_uint64_t>(index), ZIP_EM_AES_256, "key");
    }
    zip_close(zip);
    std::string bytes(1 << 20, '\0');
    zip_source_open(target);
    const auto size = zip_source_read(target, &bytes[0], bytes.size());
    zip_source_close(target);
    zip_source_free(target);
    bytes.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return bytes;
}

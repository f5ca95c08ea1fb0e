// SPDX-License-Identifier: MIT
#include "zipped.h"

#include <zlib.h>

#include <cstdint>
#include <initializer_list>
#include <stdexcept>

namespace {

std::string deflated(const std::string &contents)
{
    z_stream stream{};
    if (deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY))
        throw std::runtime_error("zlib cannot be used");
    std::string result(deflateBound(&stream, contents.size()), '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(contents.data()));
    stream.avail_in = static_cast<uInt>(contents.size());
    stream.next_out = reinterpret_cast<Bytef *>(&result[0]);
    stream.avail_out = static_cast<uInt>(result.size());
    deflate(&stream, Z_FINISH);
    result.resize(stream.total_out);
    deflateEnd(&stream);
    return result;
}

std::string littleEndian(int bytes, std::initializer_list<std::size_t> numbers)
{
    std::string result;
    for (std::size_t number : numbers) {
        for (int i = 0; i < bytes; ++i)
            result += static_cast<char>(number >> 8 * i);
    }
    return result;
}

} // namespace

std::string zipped(const std::string &fileName, const std::string &contents)
{
    const std::string data = deflated(contents);
    const std::size_t checksum = crc32(0, reinterpret_cast<const Bytef *>(contents.data()),
                                       static_cast<uInt>(contents.size()));
    // Version needed, flags, method (deflate), time and date (1 January 1980).
    const std::string facts = littleEndian(2, {20, 0, 8, 0, 0x21}) +
                              littleEndian(4, {checksum, data.size(), contents.size()}) +
                              littleEndian(2, {fileName.size(), 0});
    const std::string local = "PK\3\4" + facts + fileName + data;
    const std::string directory = "PK\1\2" + littleEndian(2, {20}) + facts +
                                  littleEndian(2, {0, 0, 0}) + littleEndian(4, {0, 0}) + fileName;
    return local + directory + "PK\5\6" + littleEndian(2, {0, 0, 1, 1}) +
           littleEndian(4, {directory.size(), local.size()}) + littleEndian(2, {0});
}

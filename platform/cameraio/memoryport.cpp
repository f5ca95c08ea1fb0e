// SPDX-License-Identifier: MIT
#include "memoryport.h"

#include <algorithm>

namespace OrvCameraIo {

std::vector<uint8_t> MemoryPort::bytesAt(const RegisterRange &range) const
{
    std::vector<uint8_t> bytes(range.size);
    for (uint32_t done = 0; done < range.size;) {
        const uint64_t offset = (range.address + done) % pageSize;
        const auto part =
            static_cast<uint32_t>(std::min<uint64_t>(range.size - done, pageSize - offset));
        const auto page = m_pages.find((range.address + done) / pageSize);
        if (page != m_pages.end())
            std::copy_n(page->second.begin() + static_cast<std::ptrdiff_t>(offset), part,
                        bytes.begin() + done);
        done += part;
    }
    return bytes;
}

void MemoryPort::read(std::vector<ReadTransfer> &batch)
{
    for (ReadTransfer &transfer : batch) {
        transfer.bytes = bytesAt(transfer.range);
        transfer.status = Status::Done;
    }
}

Status MemoryPort::write(uint64_t address, const std::vector<uint8_t> &bytes)
{
    for (std::size_t done = 0; done < bytes.size();) {
        const uint64_t offset = (address + done) % pageSize;
        const auto part = std::min<std::size_t>(bytes.size() - done, pageSize - offset);
        std::vector<uint8_t> &page = m_pages[(address + done) / pageSize];
        page.resize(pageSize);
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(done), part,
                    page.begin() + static_cast<std::ptrdiff_t>(offset));
        done += part;
    }
    return Status::Done;
}

} // namespace OrvCameraIo

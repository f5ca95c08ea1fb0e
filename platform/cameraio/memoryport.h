// SPDX-License-Identifier: MIT
#pragma once

#include "port.h"

#include <GenApi/Types.h>

#include <map>

namespace OrvCameraIo {

/// Registers without a camera: any address can be read and written, and is 0 until written.
class MemoryPort final : public Port
{
public:
    bool isImmediate() const override { return true; }
    std::size_t batchSize() const override { return SIZE_MAX; }
    void setHints(const PortHints &hints) override { m_isWordNumber = hints.isWordNumber; }
    bool isWordNumber() const override { return m_isWordNumber; }
    void read(std::vector<ReadTransfer> &batch) override;
    Status write(uint64_t address, const std::vector<uint8_t> &bytes) override;

private:
    static constexpr uint64_t pageSize = 4096;

    std::vector<uint8_t> bytesAt(const RegisterRange &range) const;

    std::map<uint64_t, std::vector<uint8_t>> m_pages; ///< by page number
    bool m_isWordNumber = false;
};

} // namespace OrvCameraIo

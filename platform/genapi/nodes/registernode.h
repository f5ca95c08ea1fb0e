// SPDX-License-Identifier: MIT
#pragma once

#include "valuenode.h"

#include <string>
#include <vector>

namespace OrvGenApi {

/// Raw bytes in the camera, with their checks and cache.
class RegisterNode : public ValueNode<GenApi::IRegister>
{
public:
    using ValueNode::ValueNode;

    void Set(const uint8_t *buffer, int64_t length, bool verify = true) override;
    void Get(uint8_t *buffer, int64_t length, bool verify = false,
             bool ignoreCache = false) override;
    int64_t GetLength(bool verify = false) override;
    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;
    void FromString(const GenICam::gcstring &text, bool verify = true) override;
    bool IsValueCacheValid() const override;
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override
    {
        return GenApi::intfIRegister;
    }
    void dropCache() override;

protected:
    virtual std::vector<uint8_t> readBytes() = 0;
    virtual void writeBytes(const std::vector<uint8_t> &bytes) = 0;
    virtual int64_t readLength() = 0;

    /// The text form of bytes.
    static std::string hexText(const std::vector<uint8_t> &bytes);

private:
    std::vector<uint8_t> bytes(bool ignoreCache);

    Cached<std::vector<uint8_t>> m_bytes;
    Cached<int64_t> m_length;
};

} // namespace OrvGenApi

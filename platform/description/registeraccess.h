// SPDX-License-Identifier: MIT
#pragma once

#include "registercodec.h"
#include "registerplace.h"

#include <GenApi/Types.h>

#include <cameraio/registerio.h>
#include <genapi/nodes/nodemapbase.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace OrvDescription {

/// A register of a description during a query of its node map: reads use the cache, writes are
/// noted in the query.
class RegisterAccess
{
public:
    /// `name` is that of the node, and must live as long as the object.
    RegisterAccess(const OrvGenApi::NodeMapBase &map, OrvCameraIo::RegisterIo &io,
                   std::string_view name, GenApi::ECachingMode mode, GenApi::EAccessMode access);

    RegisterPlace place;
    RegisterCodec::Format format;

    /// Invalidates previous reads.
    void markStale() { m_staleSince = m_io.now(); }

    /// Whether the last read failed without an answer; the call resets the flag.
    bool takeUnanswered() { return std::exchange(m_wasUnanswered, false); }

    /// Whether the camera has refused the last read.
    bool wasRefused() const { return m_wasRefused; }

    /// Whether the value has been queried since the flag was cleared.
    bool isLookedAt() const { return m_isLookedAt; }
    void setLookedAt(bool isLookedAt) { m_isLookedAt = isLookedAt; }

    /// The range that was read last, and its cached contents unless they are invalid.
    std::pair<OrvGenApi::RegisterRange, OrvCameraIo::RegisterIo::Known> known() const;

    int64_t integer();
    double real();
    std::string text();
    RegisterCodec::Bytes bytes();

    /// Reads at most that many bytes from the beginning.
    RegisterCodec::Bytes firstBytes(int64_t count);

    void setInteger(int64_t value);
    void setReal(double value);
    void setText(const std::string &value);

    /// Bytes beyond the given ones keep their values.
    void setBytes(const RegisterCodec::Bytes &bytes);

    int64_t minInteger() const;
    int64_t maxInteger() const;
    double maxReal() const;
    int64_t address() const { return static_cast<int64_t>(place.address()); }
    int64_t length() const;

    bool isCachable() const { return m_mode != GenApi::NoCache; }
    GenApi::EAccessMode accessMode() const { return m_access; }

private:
    RegisterCodec::Bytes read(const OrvGenApi::RegisterRange &range);
    OrvCameraIo::RegisterIo::Known look(const OrvGenApi::RegisterRange &range,
                                        OrvGenApi::Question &question) const;
    void write(uint64_t address, RegisterCodec::Bytes bytes, RegisterCodec::Bytes mask);
    OrvGenApi::Question &question() const;
    RegisterCodec::Format formatOf(uint32_t size) const;

    const OrvGenApi::NodeMapBase &m_map;
    OrvCameraIo::RegisterIo &m_io;
    std::string_view m_name;
    GenApi::ECachingMode m_mode;
    GenApi::EAccessMode m_access;
    bool m_wasUnanswered = false;
    bool m_wasRefused = false;
    bool m_isLookedAt = false;
    OrvGenApi::RegisterRange m_lastRange; ///< the last read; shorter than the register for a text
    uint64_t m_staleSince = 0;
};

/// Throws the GenICam exception for a failed transfer.
[[noreturn]] void throwFailure(OrvCameraIo::Status status, std::string_view node);

} // namespace OrvDescription

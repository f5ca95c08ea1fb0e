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

/// One register of a description, while a question to its node map is being answered: reading looks
/// at what is known, writing notes what is to be written.
class RegisterAccess
{
public:
    /// `name` is that of the node and lives as long as the object.
    RegisterAccess(const OrvGenApi::NodeMapBase &map, OrvCameraIo::RegisterIo &io,
                   std::string_view name, GenApi::ECachingMode mode, GenApi::EAccessMode access);

    RegisterPlace place;
    RegisterCodec::Format format;

    /// What was read up to now is outdated.
    void markStale() { m_staleSince = m_io.now(); }

    /// Whether the last read failed for want of an answer; asking resets it.
    bool takeUnanswered() { return std::exchange(m_wasUnanswered, false); }

    /// Whether the camera has refused the last read.
    bool wasRefused() const { return m_wasRefused; }

    /// Whether the value has been queried since this was set to false.
    bool isLookedAt() const { return m_isLookedAt; }
    void setLookedAt(bool isLookedAt) { m_isLookedAt = isLookedAt; }

    /// Where it was read last, and what is known of it, unless that is outdated.
    std::pair<OrvGenApi::RegisterRange, OrvCameraIo::RegisterIo::Known> known() const;

    int64_t integer();
    double real();
    std::string text();
    RegisterCodec::Bytes bytes();

    /// No more than so many from the beginning.
    RegisterCodec::Bytes firstBytes(int64_t count);

    void setInteger(int64_t value);
    void setReal(double value);
    void setText(const std::string &value);

    /// What is left out stays as it is.
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
    OrvGenApi::RegisterRange m_lastRange; ///< that was read; shorter than the register for a text
    uint64_t m_staleSince = 0;
};

/// Throws the GenICam exception that fits a transfer that has failed.
[[noreturn]] void throwFailure(OrvCameraIo::Status status, std::string_view node);

} // namespace OrvDescription

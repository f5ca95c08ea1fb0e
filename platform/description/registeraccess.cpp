// SPDX-License-Identifier: MIT
#include "registeraccess.h"

#include <Base/GCException.h>

#include <cameraio/limits.h>

#include <algorithm>

using namespace OrvGenApi;
using OrvCameraIo::RegisterIo;
using OrvCameraIo::Status;
using OrvDescription::RegisterCodec::Bytes;
using OrvDescription::RegisterCodec::Format;
namespace Limits = OrvCameraIo::Limits;

namespace OrvDescription {

namespace {

/// The maximum age of a result for a look-ahead.
constexpr std::chrono::milliseconds lookedAtAge{1000};

} // namespace

void throwFailure(Status status, std::string_view node)
{
    const auto text = [&](const char *what) { return std::string(node) + ": " + what; };
    switch (status) {
    case Status::NotSent:
    case Status::NoAnswer:
        throw GenICam::TimeoutException(text("the camera does not answer").c_str(), __FILE__,
                                        __LINE__);
    case Status::AccessDenied:
        throw GenICam::AccessException(text("the camera denies access").c_str(), __FILE__,
                                       __LINE__);
    case Status::InvalidParameter:
        throw GenICam::OutOfRangeException(text("the camera does not take the value").c_str(),
                                           __FILE__, __LINE__);
    case Status::InvalidAddress:
        throw GenICam::RuntimeException(text("the camera has no such register").c_str(), __FILE__,
                                        __LINE__);
    case Status::Closed:
        throw GenICam::RuntimeException(text("the connection has ended").c_str(), __FILE__,
                                        __LINE__);
    default:
        throw GenICam::RuntimeException(text("the camera reports a failure").c_str(), __FILE__,
                                        __LINE__);
    }
}

RegisterAccess::RegisterAccess(const NodeMapBase &map, RegisterIo &io, std::string_view name,
                               GenApi::ECachingMode mode, GenApi::EAccessMode access)
    : m_map(map), m_io(io), m_name(name), m_mode(mode), m_access(access)
{
}

Question &RegisterAccess::question() const
{
    Question *question = Question::current(m_map);
    if (!question)
        throw GenICam::LogicalErrorException(
            (std::string(m_name) + ": the register is used outside of a question").c_str(),
            __FILE__, __LINE__);
    return *question;
}

RegisterIo::Known RegisterAccess::look(const RegisterRange &range, Question &question) const
{
    if (isCachable())
        return m_io.look(range, m_staleSince);
    if (question.kind() == Question::Kind::Looking) {
        RegisterIo::Known known = m_io.look(range, m_staleSince, lookedAtAge);
        if (known.isKnown || question.askedAt == 0)
            return known;
    }
    if (question.askedAt == 0)
        question.askedAt = m_io.now();
    return m_io.look(range, std::max(m_staleSince, question.askedAt));
}

Bytes RegisterAccess::read(const RegisterRange &range)
{
    if (range.size == 0)
        return {};
    Question &asked = question();
    m_isLookedAt = true;
    m_lastRange = range;
    RegisterIo::Known known = look(range, asked);
    if (!known.isKnown) {
        asked.missing.push_back(range);
        throw NotYetKnown();
    }
    m_wasUnanswered = !isAnswer(known.status);
    m_wasRefused = isRefusal(known.status);
    if (known.status != Status::Done)
        throwFailure(known.status, m_name);
    return std::move(known.bytes);
}

std::pair<RegisterRange, RegisterIo::Known> RegisterAccess::known() const
{
    return {m_lastRange, m_io.look(m_lastRange, m_staleSince)};
}

void RegisterAccess::write(uint64_t address, Bytes bytes, Bytes mask)
{
    RegisterWrite write;
    write.address = address;
    write.bytes = std::move(bytes);
    write.mask = std::move(mask);
    write.staleSince = isCachable() ? m_staleSince : m_io.now();
    write.isWriteOnly = m_access == GenApi::WO;
    write.isKept = m_mode == GenApi::WriteThrough;
    write.node = m_name;
    question().writes.push_back(std::move(write));
}

/// Registers that are transferred as numbers have the byte order of the transport.
Format RegisterAccess::formatOf(uint32_t size) const
{
    Format result = format;
    if (size == 4 && m_io.isWordNumber())
        result.isBigEndian = true;
    return result;
}

int64_t RegisterAccess::integer()
{
    const RegisterRange range = place.range(m_name);
    return RegisterCodec::integer(read(range), formatOf(range.size));
}

double RegisterAccess::real()
{
    const RegisterRange range = place.range(m_name);
    return RegisterCodec::real(read(range), formatOf(range.size).isBigEndian);
}

std::string RegisterAccess::text()
{
    return RegisterCodec::text(firstBytes(Limits::textSize));
}

Bytes RegisterAccess::bytes()
{
    return read(place.range(m_name, 0));
}

Bytes RegisterAccess::firstBytes(int64_t count)
{
    RegisterRange range = place.range(m_name);
    range.size = static_cast<uint32_t>(std::min<int64_t>(range.size, count));
    return read(range);
}

void RegisterAccess::setInteger(int64_t value)
{
    const RegisterRange range = place.range(m_name);
    const Format used = formatOf(range.size);
    write(range.address, RegisterCodec::bytesOfInteger(value, range.size, used),
          RegisterCodec::mask(range.size, used));
}

void RegisterAccess::setReal(double value)
{
    const RegisterRange range = place.range(m_name);
    write(range.address,
          RegisterCodec::bytesOfReal(value, range.size, formatOf(range.size).isBigEndian), {});
}

void RegisterAccess::setText(const std::string &value)
{
    const RegisterRange range = place.range(m_name);
    const auto size = std::min<int64_t>(range.size, Limits::textSize);
    if (static_cast<int64_t>(value.size()) > size)
        throw GenICam::OutOfRangeException(
            (std::string(m_name) + ": the text is longer than " + std::to_string(size) + " bytes")
                .c_str(),
            __FILE__, __LINE__);
    write(range.address, RegisterCodec::bytesOfText(value, static_cast<std::size_t>(size)), {});
}

void RegisterAccess::setBytes(const Bytes &bytes)
{
    const RegisterRange range = place.range(m_name, 0);
    if (bytes.empty())
        return;
    Bytes contents = bytes;
    Bytes mask;
    if (bytes.size() < range.size) {
        mask.assign(bytes.size(), 0xff);
        mask.resize(range.size);
    }
    contents.resize(range.size);
    write(range.address, std::move(contents), std::move(mask));
}

int64_t RegisterAccess::minInteger() const
{
    return RegisterCodec::smallestInteger(place.length(m_name), format);
}

int64_t RegisterAccess::maxInteger() const
{
    return RegisterCodec::largestInteger(place.length(m_name), format);
}

double RegisterAccess::maxReal() const
{
    return RegisterCodec::largestReal(place.length(m_name));
}

int64_t RegisterAccess::length() const
{
    return place.length(m_name, 0);
}

} // namespace OrvDescription

// SPDX-License-Identifier: MIT
#include "devicerecord.h"

#include "cameradevice.h"
#include "camerasystem.h"

#include <tuple>

namespace OrvCam {

namespace {

auto tied(const DeviceFacts &facts)
{
    return std::tie(facts.vendor, facts.model, facts.serial, facts.version, facts.userName,
                    facts.id, facts.remark, facts.accessState);
}

const char *textOrNull(const std::optional<std::string> &text)
{
    return text ? text->c_str() : nullptr;
}

/// The objects that an open camera keeps alive.
struct Owner
{
    std::shared_ptr<CameraSystem> system;
    std::shared_ptr<void> use;
};

} // namespace

bool DeviceFacts::operator==(const DeviceFacts &other) const
{
    return tied(*this) == tied(other);
}

std::string DeviceFacts::displayName() const
{
    const auto &detail = userName ? userName : serial;
    const std::string appended = remark.empty() ? remark : " - " + remark;
    if (!model)
        return detail.value_or(id) + appended;
    return (detail ? *model + " (" + *detail + ")" : *model) + appended;
}

DeviceRecord::DeviceRecord(CameraInterface &parent, DeviceFacts facts,
                           std::shared_ptr<CameraConnector> connector)
    : m_parent(parent)
    , m_facts(std::move(facts))
    , m_accessState(m_facts.accessState)
    , m_displayName(m_facts.displayName())
    , m_connector(std::move(connector))
    , m_use(std::make_shared<char>())
{
}

void DeviceRecord::reuseFor(DeviceFacts facts, std::shared_ptr<CameraConnector> connector)
{
    update(std::move(facts));
    m_connector = std::move(connector);
}

bool DeviceRecord::update(DeviceFacts facts)
{
    const bool isSameState = m_accessState.exchange(facts.accessState) == facts.accessState;
    // Unchanged texts keep their addresses.
    if (facts == m_facts)
        return !isSameState;
    m_facts = std::move(facts);
    m_displayName = m_facts.displayName();
    return true;
}

Device *DeviceRecord::open(int32_t accessMode, int32_t &error)
{
    Request request;
    request.accessMode = accessMode;
    const Result result = opener()(request);
    error = result.error;
    return result.device;
}

DeviceOpener::Open DeviceRecord::opener()
{
    // The system owns the record, which keeps its address as long as the system exists.
    const auto owner = std::make_shared<Owner>(Owner{m_parent.system().shared_from_this(), m_use});
    return [this, owner, connector = m_connector](const Request &request) {
        Result result;
        result.error = ErrorAccessDenied;
        if (!connector)
            return result;
        const OpenProgress progress{request.report, request.isCancelled,
                                    [&](const std::string &reason) { result.reason = reason; }};
        try {
            result.device = CameraDevice::open(owner, *this, connector, request.accessMode,
                                               result.error, progress, request.homeThread);
        } catch (...) {
            result.error = ErrorFailed;
        }
        return result;
    };
}

Interface *DeviceRecord::GetInterface() const
{
    return &m_parent;
}

const char *DeviceRecord::GetVendor() const
{
    return textOrNull(m_facts.vendor);
}

const char *DeviceRecord::GetModel() const
{
    return textOrNull(m_facts.model);
}

const char *DeviceRecord::GetSerial() const
{
    return textOrNull(m_facts.serial);
}

const char *DeviceRecord::GetVersionText() const
{
    return textOrNull(m_facts.version);
}

const char *DeviceRecord::GetUserName() const
{
    return textOrNull(m_facts.userName);
}

} // namespace OrvCam

// SPDX-License-Identifier: MIT
#include "gvcontrol.h"

#include "gvcpsocket.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>

using namespace std::chrono;
using namespace OrvCam;

namespace OrvGigEVision {

namespace {

/// After so long without an answer, a command may have been lost.
constexpr milliseconds repetition{100};

int32_t accessByPrivilege(const Gvcp::Acknowledge &answer)
{
    // A camera that is under exclusive control does not even let others read.
    if (answer.status == Gvcp::StatusAccessDenied)
        return AccessNone;
    const auto value = Gvcp::parseRegister(answer);
    if (answer.status != Gvcp::StatusSuccess || !value)
        return AccessUnknown;
    return *value & Gvcp::controlPrivilegeMask ? AccessNone : AccessReadWrite;
}

/// One search for cameras, with the question after who controls them.
class Discovery
{
public:
    explicit Discovery(const NetworkAdapter &adapter)
        : m_adapter(adapter), m_socket(adapter), m_id(m_socket.nextId())
    {
    }

    void ask() { m_socket.broadcast(Gvcp::discoveryCommand(m_id)); }

    /// Listens until the time is up or `isEnough` says so of a camera that has just answered.
    bool listen(Clock::time_point until, const std::function<bool(const GvCamera &)> &isEnough);

    const std::vector<GvCamera> &cameras() const { return m_cameras; }

private:
    const GvCamera *meet(const Gvcp::Acknowledge &answer);

    const NetworkAdapter &m_adapter;
    GvcpSocket m_socket;
    const uint16_t m_id;
    std::vector<GvCamera> m_cameras;
    std::map<uint16_t, std::size_t> m_asked; ///< camera by the id of the question
};

bool Discovery::listen(Clock::time_point until,
                       const std::function<bool(const GvCamera &)> &isEnough)
{
    while (const auto answer = m_socket.receive(until)) {
        if (answer->is(Gvcp::Answer::Discovery, m_id)) {
            const GvCamera *camera = meet(*answer);
            if (camera && isEnough(*camera))
                return true;
            continue;
        }
        const auto asked = m_asked.find(answer->id);
        if (asked != m_asked.end() && answer->is(Gvcp::Answer::ReadRegister, asked->first))
            m_cameras[asked->second].accessState = accessByPrivilege(*answer);
    }
    return false;
}

const GvCamera *Discovery::meet(const Gvcp::Acknowledge &answer)
{
    const auto identity = Gvcp::parseIdentity(answer);
    if (answer.status != Gvcp::StatusSuccess || !identity)
        return nullptr;
    GvCamera camera{*identity, AccessUnknown};
    const auto isSame = [&](const GvCamera &other) { return other.id() == camera.id(); };
    const auto known = std::find_if(m_cameras.begin(), m_cameras.end(), isSame);
    if (known != m_cameras.end()) {
        known->identity = *identity;
        return &*known;
    }

    if (m_adapter.addressFor(identity->ip)) {
        const uint16_t id = m_socket.nextId();
        m_asked[id] = m_cameras.size();
        m_socket.send(Gvcp::readRegisterCommand(id, Gvcp::controlPrivilegeRegister), identity->ip);
    } else {
        camera.accessState = AccessSubnetMismatch;
    }
    m_cameras.push_back(std::move(camera));
    return &m_cameras.back();
}

} // namespace

std::string GvCamera::id() const
{
    if (identity.mac == 0)
        return identity.manufacturer + "-" + identity.serial;
    char text[18];
    std::snprintf(text, sizeof text, "%02X:%02X:%02X:%02X:%02X:%02X",
                  static_cast<unsigned>(identity.mac >> 40 & 0xFF),
                  static_cast<unsigned>(identity.mac >> 32 & 0xFF),
                  static_cast<unsigned>(identity.mac >> 24 & 0xFF),
                  static_cast<unsigned>(identity.mac >> 16 & 0xFF),
                  static_cast<unsigned>(identity.mac >> 8 & 0xFF),
                  static_cast<unsigned>(identity.mac & 0xFF));
    return text;
}

std::vector<GvCamera> discoverCameras(const NetworkAdapter &adapter, milliseconds time)
{
    const auto start = Clock::now();
    const auto never = [](const GvCamera &) { return false; };
    Discovery discovery(adapter);
    // Twice, because the first packet to a camera is the one that gets lost.
    discovery.ask();
    discovery.listen(start + time / 2, never);
    discovery.ask();
    discovery.listen(start + time, never);
    return discovery.cameras();
}

std::optional<GvCamera> findCamera(const NetworkAdapter &adapter, const std::string &id,
                                   milliseconds time)
{
    const auto end = Clock::now() + time;
    std::optional<GvCamera> found;
    const auto isWanted = [&](const GvCamera &camera) {
        if (camera.id() == id)
            found = camera;
        return found.has_value();
    };
    Discovery discovery(adapter);
    do {
        discovery.ask();
    } while (!discovery.listen(std::min(end, Clock::now() + repetition), isWanted) &&
             Clock::now() < end);
    return found;
}

std::optional<RegisterAnswer> readRegister(const NetworkAdapter &adapter, uint32_t camera,
                                           uint32_t address, milliseconds time)
{
    const auto end = Clock::now() + time;
    GvcpSocket socket(adapter);
    const uint16_t id = socket.nextId();
    const Gvcp::Packet command = Gvcp::readRegisterCommand(id, address);
    do {
        socket.send(command, camera);
        const auto until = std::min(end, Clock::now() + repetition);
        while (const auto answer = socket.receive(until)) {
            if (answer->is(Gvcp::Answer::ReadRegister, id))
                return RegisterAnswer{answer->status, Gvcp::parseRegister(*answer).value_or(0)};
        }
    } while (Clock::now() < end);
    return std::nullopt;
}

int32_t forceIp(const NetworkAdapter &adapter, uint64_t mac, uint32_t ip, uint32_t mask,
                uint32_t gateway, milliseconds time)
{
    const auto end = Clock::now() + time;
    {
        GvcpSocket socket(adapter);
        const uint16_t id = socket.nextId();
        socket.broadcast(Gvcp::forceIpCommand(id, mac, ip, mask, gateway));
        while (const auto answer = socket.receive(std::min(end, Clock::now() + repetition))) {
            if (!answer->is(Gvcp::Answer::ForceIp, id))
                continue;
            if (answer->status != Gvcp::StatusSuccess)
                return ErrorAccessDenied;
            break;
        }
    }

    // Cameras may be silent for seconds while they change their address.
    const auto isThere = [&](const GvCamera &camera) {
        return camera.identity.mac == mac && camera.identity.ip == ip &&
               camera.identity.mask == mask;
    };
    Discovery discovery(adapter);
    do {
        discovery.ask();
        if (discovery.listen(std::min(end, Clock::now() + repetition), isThere))
            return Success;
    } while (Clock::now() < end);
    return ErrorTimeout;
}

} // namespace OrvGigEVision

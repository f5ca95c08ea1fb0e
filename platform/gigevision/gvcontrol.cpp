// SPDX-License-Identifier: MIT
#include "gvcontrol.h"

#include "gvcpsocket.h"

#include <cameraio/limits.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>

using namespace std::chrono;
namespace Limits = OrvCameraIo::Limits;

namespace OrvGigEVision {

namespace {

/// After so long without an answer, a command may have been lost.
constexpr milliseconds repetition{100};

Control controlByPrivilege(const Gvcp::Acknowledge &answer)
{
    // A camera that is under exclusive control does not even let others read.
    if (answer.status == Gvcp::StatusAccessDenied)
        return Control::Taken;
    const auto values = Gvcp::parseRegisters(answer, 1);
    if (answer.status != Gvcp::StatusSuccess || !values)
        return Control::Unknown;
    return values->front() & Gvcp::controlPrivilegeMask ? Control::Taken : Control::Free;
}

/// One search for cameras.
class Discovery
{
public:
    enum class Ask { WhoTheyAre, WhoControlsThem };

    explicit Discovery(const NetworkAdapter &adapter, Ask question = Ask::WhoTheyAre)
        : m_adapter(adapter), m_question(question), m_socket(adapter), m_id(m_socket.nextId())
    {
    }

    void ask() { m_socket.broadcast(Gvcp::discoveryCommand(m_id)); }

    /// Listens until the time is up or `isEnough` says so of a camera that has just answered.
    bool listen(Clock::time_point until, const std::function<bool(const GvCamera &)> &isEnough);

    const std::vector<GvCamera> &cameras() const { return m_cameras; }

private:
    const GvCamera *meet(const Gvcp::Acknowledge &answer);

    const NetworkAdapter &m_adapter;
    const Ask m_question;
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
            m_cameras[asked->second].control = controlByPrivilege(*answer);
    }
    return false;
}

const GvCamera *Discovery::meet(const Gvcp::Acknowledge &answer)
{
    const auto identity = Gvcp::parseIdentity(answer);
    if (answer.status != Gvcp::StatusSuccess || !identity)
        return nullptr;
    GvCamera camera;
    camera.identity = *identity;
    camera.isReachable = m_adapter.addressFor(identity->ip) != nullptr;
    const auto isSame = [&](const GvCamera &other) { return other.id() == camera.id(); };
    const auto known = std::find_if(m_cameras.begin(), m_cameras.end(), isSame);
    if (known != m_cameras.end()) {
        known->identity = *identity;
        known->isReachable = camera.isReachable;
        return &*known;
    }
    if (m_cameras.size() >= Limits::camerasPerAdapter)
        return nullptr;

    if (camera.isReachable && m_question == Ask::WhoControlsThem) {
        const uint16_t id = m_socket.nextId();
        m_asked[id] = m_cameras.size();
        m_socket.send(Gvcp::readRegistersCommand(id, {Gvcp::ControlPrivilege}), identity->ip);
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
    Discovery discovery(adapter, Discovery::Ask::WhoControlsThem);
    // Twice, because the first packet to a camera is the one that gets lost.
    discovery.ask();
    discovery.listen(start + time / 2, never);
    discovery.ask();
    discovery.listen(start + time, never);
    return discovery.cameras();
}

std::optional<GvCamera> findCamera(const NetworkAdapter &adapter, const std::string &id,
                                   milliseconds time, const std::function<bool()> &isCancelled)
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
             Clock::now() < end && !(isCancelled && isCancelled()));
    return found;
}

ForceResult forceIp(const NetworkAdapter &adapter, uint64_t mac, uint32_t ip, uint32_t mask,
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
                return ForceResult::Refused;
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
            return ForceResult::Done;
    } while (Clock::now() < end);
    return ForceResult::NotSeen;
}

} // namespace OrvGigEVision

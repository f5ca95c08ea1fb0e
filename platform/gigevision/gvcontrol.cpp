// SPDX-License-Identifier: MIT
#include "gvcontrol.h"

#include "gvcpsocket.h"

#include <cameraio/limits.h>

#include <algorithm>

using namespace std::chrono;
namespace Limits = OrvCameraIo::Limits;

namespace OrvGigEVision {

namespace {

/// The time after which an unanswered command may have been lost.
constexpr milliseconds repetition{100};

/// Forces a configuration on a camera and searches for it.
class Forcing
{
public:
    Forcing(const NetworkAdapter &adapter, const Gvcp::Identity &wanted)
        : m_adapter(adapter), m_wanted(wanted), m_socket(adapter)
    {
    }

    ForceResult run(const std::function<bool()> &isCancelled);

private:
    void ask();
    std::optional<ForceResult> listen(Clock::time_point until);
    bool isDone(const Gvcp::Acknowledge &answer) const;

    const NetworkAdapter &m_adapter;
    const Gvcp::Identity m_wanted;
    GvcpSocket m_socket;
    const uint16_t m_forceId = m_socket.nextId();
    const uint16_t m_discoveryId = m_socket.nextId();
    Clock::time_point m_end = Clock::now() + Limits::forcedIpSilence;
    Clock::time_point m_nextCommand = Clock::now();
    milliseconds m_interval = repetition;
    bool m_isAcknowledged = false;
};

ForceResult Forcing::run(const std::function<bool()> &isCancelled)
{
    while (Clock::now() < m_end && !(isCancelled && isCancelled())) {
        ask();
        if (const auto result = listen(std::min(m_end, Clock::now() + repetition)))
            return *result;
    }
    return ForceResult::NotSeen;
}

void Forcing::ask()
{
    const auto now = Clock::now();
    if (!m_isAcknowledged && now >= m_nextCommand) {
        m_socket.broadcast(Gvcp::forceIpCommand(m_forceId, m_wanted.mac, m_wanted.ip, m_wanted.mask,
                                                m_wanted.gateway));
        // At increasing intervals, because the command may restart a camera whose acknowledge gets
        // lost.
        m_nextCommand = now + m_interval;
        m_interval *= 2;
    }
    m_socket.broadcast(Gvcp::discoveryCommand(m_discoveryId));
}

std::optional<ForceResult> Forcing::listen(Clock::time_point until)
{
    while (const auto answer = m_socket.receive(until)) {
        if (answer->is(Gvcp::Answer::Discovery, m_discoveryId) && isDone(*answer))
            return ForceResult::Done;
        if (m_isAcknowledged || !answer->is(Gvcp::Answer::ForceIp, m_forceId))
            continue;
        if (answer->status != Gvcp::StatusSuccess)
            return ForceResult::Refused;
        // The camera may be silent for seconds while it changes its address.
        m_isAcknowledged = true;
        m_end = Clock::now() + Limits::forcedIpBudget;
    }
    return std::nullopt;
}

bool Forcing::isDone(const Gvcp::Acknowledge &answer) const
{
    const auto camera = parseCamera(answer, m_socket.sender(), m_adapter);
    return camera && camera->identity.mac == m_wanted.mac && camera->identity.ip == m_wanted.ip &&
           camera->identity.mask == m_wanted.mask;
}

} // namespace

std::optional<GvCamera> findCamera(const NetworkAdapter &adapter, const std::string &id,
                                   milliseconds time, const std::function<bool()> &isCancelled)
{
    const auto end = Clock::now() + time;
    GvcpSocket socket(adapter);
    const uint16_t commandId = socket.nextId();
    do {
        socket.broadcast(Gvcp::discoveryCommand(commandId));
        const auto until = std::min(end, Clock::now() + repetition);
        while (const auto answer = socket.receive(until)) {
            if (!answer->is(Gvcp::Answer::Discovery, commandId))
                continue;
            auto camera = parseCamera(*answer, socket.sender(), adapter);
            if (camera && camera->isCalled(id))
                return camera;
        }
    } while (Clock::now() < end && !(isCancelled && isCancelled()));
    return std::nullopt;
}

ForceResult forceIp(const NetworkAdapter &adapter, uint64_t mac, uint32_t ip, uint32_t mask,
                    uint32_t gateway, const std::function<bool()> &isCancelled)
{
    Gvcp::Identity wanted;
    wanted.mac = mac;
    wanted.ip = ip;
    wanted.mask = mask;
    wanted.gateway = gateway;
    return Forcing(adapter, wanted).run(isCancelled);
}

} // namespace OrvGigEVision

// SPDX-License-Identifier: MIT
#include "discovery.h"

#include <cameraio/limits.h>

#include <poll.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>

namespace OrvGigEVision {

namespace Limits = OrvCameraIo::Limits;

namespace {

using Discoveries = std::vector<std::unique_ptr<Discovery>>;

/// Packets get lost, so commands are repeated: discovery in every other one of these rounds, the
/// query of the controllers in each.
constexpr int rounds = 4;

/// The number of answers of an adapter that are processed before those of the next one.
constexpr int answersInARow = 64;

Control controlByPrivilege(const Gvcp::Acknowledge &answer)
{
    // A camera under exclusive control also refuses reads.
    if (answer.status == Gvcp::StatusAccessDenied)
        return Control::Taken;
    const auto values = Gvcp::parseRegisters(answer, 1);
    if (answer.status != Gvcp::StatusSuccess || !values)
        return Control::Unknown;
    return values->front() & Gvcp::controlPrivilegeMask ? Control::Taken : Control::Free;
}

/// Two cameras with the same MAC address are distinguished.
std::string keyOf(const GvCamera &camera)
{
    return camera.name() + '\n' + ipText(camera.identity.ip) + '\n' + camera.identity.serial;
}

void takeAnswers(const Discoveries &discoveries, Clock::time_point until)
{
    std::vector<pollfd> waiting;
    for (const auto &discovery : discoveries)
        waiting.push_back({discovery->descriptor(), POLLIN, 0});
    for (auto now = Clock::now(); now < until; now = Clock::now()) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - now);
        poll(waiting.data(), waiting.size(), static_cast<int>(left.count()));
        for (std::size_t i = 0; i < waiting.size(); ++i) {
            if (waiting[i].revents & POLLIN)
                discoveries[i]->takeAnswers();
        }
    }
}

} // namespace

Discovery::Discovery(const NetworkAdapter &adapter)
    : m_adapter(adapter), m_socket(adapter), m_discoveryId(m_socket.nextId())
{
}

void Discovery::sendDiscovery()
{
    m_socket.broadcast(Gvcp::discoveryCommand(m_discoveryId));
}

void Discovery::queryControllers()
{
    for (std::size_t i = 0; i < m_cameras.size(); ++i)
        queryControllers(i);
}

void Discovery::queryControllers(std::size_t camera)
{
    if (!m_cameras[camera].isReachable || m_cameras[camera].control != Control::Unknown)
        return;
    const uint16_t id = m_socket.nextId();
    m_asked[id] = camera;
    m_socket.send(Gvcp::readRegistersCommand(id, {Gvcp::ControlPrivilege}),
                  m_cameras[camera].identity.ip);
}

void Discovery::takeAnswers()
{
    for (int i = 0; i < answersInARow && m_socket.hasPacket(); ++i) {
        const auto answer = m_socket.take();
        if (!answer)
            continue;
        if (!answer->is(Gvcp::Answer::Discovery, m_discoveryId)) {
            learnControl(*answer);
            continue;
        }
        const auto camera = parseCamera(*answer, m_socket.sender(), m_adapter);
        if (camera)
            meet(*camera);
    }
}

void Discovery::meet(const GvCamera &camera)
{
    const std::string key = keyOf(camera);
    if (m_positions.count(key))
        return;
    if (m_cameras.size() >= Limits::camerasPerAdapter) {
        m_unlisted.insert(std::hash<std::string>()(key));
        return;
    }
    m_positions[key] = m_cameras.size();
    m_cameras.push_back(camera);
    queryControllers(m_cameras.size() - 1);
}

void Discovery::learnControl(const Gvcp::Acknowledge &answer)
{
    const auto asked = m_asked.find(answer.id);
    if (asked == m_asked.end() || !answer.is(Gvcp::Answer::ReadRegister, asked->first))
        return;
    GvCamera &camera = m_cameras[asked->second];
    if (camera.identity.ip == m_socket.sender())
        camera.control = controlByPrivilege(answer);
}

AdapterCameras Discovery::result() const
{
    AdapterCameras result{m_adapter, m_cameras, m_unlisted.size()};
    std::map<std::string, int> count;
    for (const GvCamera &camera : m_cameras)
        ++count[camera.name()];
    for (GvCamera &camera : result.cameras)
        camera.isNameShared = count[camera.name()] > 1;
    return result;
}

std::vector<AdapterCameras> discoverCameras(const std::vector<NetworkAdapter> &adapters,
                                            std::chrono::milliseconds time)
{
    const auto start = Clock::now();
    std::vector<AdapterCameras> results;
    Discoveries discoveries;
    for (const NetworkAdapter &adapter : adapters) {
        results.push_back({adapter, {}, 0});
        if (adapter.isConnected)
            discoveries.push_back(std::make_unique<Discovery>(adapter));
    }
    if (discoveries.empty())
        return results;

    for (int round = 0; round < rounds; ++round) {
        for (const auto &discovery : discoveries) {
            if (round % 2 == 0)
                discovery->sendDiscovery();
            discovery->queryControllers();
        }
        takeAnswers(discoveries, start + time * (round + 1) / rounds);
    }
    auto next = discoveries.begin();
    for (AdapterCameras &result : results) {
        if (result.adapter.isConnected)
            result = (*next++)->result();
    }
    return results;
}

} // namespace OrvGigEVision

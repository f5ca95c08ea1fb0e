// SPDX-License-Identifier: MIT
#pragma once

#include "gvcamera.h"
#include "gvcpsocket.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace OrvGigEVision {

/// The cameras behind one adapter.
struct AdapterCameras
{
    NetworkAdapter adapter;

    /// Without duplicates, at most `Limits::camerasPerAdapter`.
    std::vector<GvCamera> cameras;

    /// The number of cameras beyond those.
    std::size_t unlisted = 0;
};

/// One search for cameras on one adapter. The caller determines when it sends and how long it
/// receives; see `NetworkSearch`.
class Discovery
{
public:
    explicit Discovery(const NetworkAdapter &adapter);

    /// A descriptor that is readable when answers are pending.
    int descriptor() const { return m_socket.descriptor(); }

    void sendDiscovery();

    /// Queries the controllers of the cameras found so far, except of those that have answered.
    void queryControllers();

    /// Processes pending answers, up to a limit. Queries the controller of each new camera.
    void takeAnswers();

    AdapterCameras result() const;

private:
    void meet(const GvCamera &camera);
    void learnControl(const Gvcp::Acknowledge &answer);
    void queryControllers(std::size_t camera);

    const NetworkAdapter m_adapter;
    GvcpSocket m_socket;
    const uint16_t m_discoveryId;
    std::vector<GvCamera> m_cameras;
    std::unordered_map<std::string, std::size_t> m_positions; ///< by identity
    std::unordered_set<std::size_t> m_unlisted; ///< hashes of the identities of further cameras
    /// Index of the camera by the id of the query.
    std::unordered_map<uint16_t, std::size_t> m_asked;
};

/// Searches all of these adapters at the same time, for exactly that duration, or not at all when
/// none of them is connected. The results are in the order of the adapters.
std::vector<AdapterCameras> discoverCameras(const std::vector<NetworkAdapter> &adapters,
                                            std::chrono::milliseconds time);

} // namespace OrvGigEVision

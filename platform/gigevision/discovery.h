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

    /// Each once, at most `Limits::camerasPerAdapter`.
    std::vector<GvCamera> cameras;

    /// The number of those beyond.
    std::size_t unlisted = 0;
};

/// One search for cameras behind one adapter. The caller decides when it sends and how long it
/// takes answers; see `NetworkSearch`.
class Discovery
{
public:
    explicit Discovery(const NetworkAdapter &adapter);

    /// A descriptor that is readable when there is something to take.
    int descriptor() const { return m_socket.descriptor(); }

    void askWhoIsThere();

    /// Asks the cameras found so far, except those that have answered this already.
    void askWhoControls();

    /// Takes what has come in, but not everything of a flood. Asks a new camera who controls it.
    void takeAnswers();

    AdapterCameras result() const;

private:
    void meet(const GvCamera &camera);
    void learnControl(const Gvcp::Acknowledge &answer);
    void askWhoControls(std::size_t camera);

    const NetworkAdapter m_adapter;
    GvcpSocket m_socket;
    const uint16_t m_discoveryId;
    std::vector<GvCamera> m_cameras;
    std::unordered_map<std::string, std::size_t> m_positions; ///< by identity
    std::unordered_set<std::size_t> m_unlisted;               ///< hashes of the same
    std::unordered_map<uint16_t, std::size_t> m_asked;        ///< camera by the id of the question
};

/// Looks behind all of these adapters at once, and takes exactly so long, but no time at all when
/// none of them is connected. What comes later is not waited for. The results are in the order of
/// the adapters.
std::vector<AdapterCameras> discoverCameras(const std::vector<NetworkAdapter> &adapters,
                                            std::chrono::milliseconds time);

} // namespace OrvGigEVision

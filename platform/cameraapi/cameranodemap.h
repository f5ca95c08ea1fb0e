// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/LookAhead.h>

#include <cameraio/fetchahead.h>
#include <description/nodemap.h>

#include <atomic>

namespace OrvCam {

/// The node map of an open camera, with look-ahead.
class CameraNodeMap final : public OrvDescription::NodeMap, public OrvGenParam::LookAhead
{
public:
    using OrvDescription::NodeMap::NodeMap;

    /// Whether the camera is disconnected. Thread-safe.
    bool isGone() const { return m_isGone; }
    void setGone(bool isGone) { m_isGone = isGone; }

    bool look(const Ask &ask) const override { return m_fetchAhead.look(ask); }
    std::unique_ptr<Request> fetch(std::vector<Ask> asks, std::function<void()> done) override;
    void fetchNow(const std::vector<Ask> &asks) override { m_fetchAhead.fetchNow(asks); }

private:
    OrvCameraIo::FetchAhead m_fetchAhead{*this, registers()};
    std::atomic<bool> m_isGone{false};
};

} // namespace OrvCam

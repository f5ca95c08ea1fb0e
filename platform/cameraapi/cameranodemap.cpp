// SPDX-License-Identifier: MIT
#include "cameranodemap.h"

namespace OrvCam {

namespace {

/// Adapts a fetch to the public interface.
class HeldRequest final : public OrvGenParam::LookAhead::Request
{
public:
    explicit HeldRequest(std::unique_ptr<OrvCameraIo::Request> request)
        : m_request(std::move(request))
    {
    }

private:
    const std::unique_ptr<OrvCameraIo::Request> m_request;
};

} // namespace

std::unique_ptr<OrvGenParam::LookAhead::Request> CameraNodeMap::fetch(std::vector<Ask> asks,
                                                                      std::function<void()> done)
{
    return std::make_unique<HeldRequest>(m_fetchAhead.fetch(std::move(asks), std::move(done)));
}

} // namespace OrvCam

// SPDX-License-Identifier: MIT
#pragma once

#include <cameraapi/camerainterface.h>
#include <cameraapi/gevparameters.h>
#include <gigevision/networksearch.h>

#include <OrvCam/AddressForcing.h>

#include <atomic>
#include <map>
#include <string>

namespace OrvCam {

/// A network adapter as an interface of the camera system.
class GvInterface final : public CameraInterface, public AddressForcing, private GevNetwork
{
public:
    /// `search` covers all network adapters and must outlive the interface.
    GvInterface(CameraSystem &system, OrvGigEVision::NetworkAdapter adapter,
                OrvGigEVision::NetworkSearch &search);

    /// Updates the adapter: its addresses and its carrier may have changed.
    void setAdapter(OrvGigEVision::NetworkAdapter adapter);

    OrvGenParam::Array *GetParamArray(int32_t *error = nullptr) override;
    void giveUp() override { m_isGivenUp = true; }

private:
    int32_t discover(uint32_t timeoutMs, std::vector<DeviceFacts> &found) override;
    std::shared_ptr<CameraConnector> makeConnector(const DeviceFacts &facts) override;
    void refreshed() override;

    GevAddresses adapter() const override;
    std::vector<GevAddresses> cameras() const override;
    int32_t forceIp(const GevAddresses &wanted) override;

    void describe();

    OrvGigEVision::NetworkSearch &m_search;
    OrvGigEVision::NetworkAdapter m_adapter;
    std::map<std::string, GevAddresses> m_addresses; ///< of the last search, by camera id
    /// The number of cameras beyond the listed ones, of the last search.
    std::size_t m_unlisted = 0;
    std::atomic<bool> m_isForcing{false}; ///< an address is being forced on another thread
    std::atomic<bool> m_isGivenUp{false}; ///< the forcing was cancelled
    GevParameters m_parameters;
};

} // namespace OrvCam

// SPDX-License-Identifier: MIT
#pragma once

#include <cameraapi/camerainterface.h>
#include <cameraapi/gevparameters.h>
#include <simulation/cameraidentity.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace OrvCam {

/// The visible data of a simulated camera, whether it is open or not.
struct SimulatedEntry
{
    OrvSimulation::CameraIdentity identity;
    int32_t accessState = AccessReadWrite; ///< while this program has not opened it
    bool isNameless = false;               ///< it reports no texts

    std::string id() const;
};

/// An interface of the simulated system. With the addresses of an adapter it is a GigE Vision
/// interface with its parameters.
class SimulatedInterface final : public CameraInterface, private GevNetwork
{
public:
    SimulatedInterface(CameraSystem &system, std::string description, int32_t transportKind,
                       std::vector<SimulatedEntry> cameras);

    void setAdapter(const GevAddresses &adapter);

    /// Makes the interface return null in place of its cameras.
    void refuseToList() { m_refusesToList = true; }

    DeviceInfoList *GetDeviceInfoSet() override;
    OrvGenParam::Array *GetParamArray(int32_t *error = nullptr) override;

private:
    using EntryPointer = std::shared_ptr<SimulatedEntry>;

    int32_t discover(uint32_t timeoutMs, std::vector<DeviceFacts> &found) override;
    std::shared_ptr<CameraConnector> makeConnector(const DeviceFacts &facts) override;
    void refreshed() override;

    GevAddresses adapter() const override { return *m_adapter; }
    std::vector<GevAddresses> cameras() const override;
    int32_t forceIp(const GevAddresses &wanted) override;

    EntryPointer entry(const std::string &id) const;

    std::vector<EntryPointer> m_cameras;
    bool m_refusesToList = false;
    std::optional<GevAddresses> m_adapter;
    std::unique_ptr<GevParameters> m_parameters;
};

} // namespace OrvCam

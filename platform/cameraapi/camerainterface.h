// SPDX-License-Identifier: MIT
#pragma once

#include "devicerecord.h"

#include <OrvCam/Interface.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace OrvCam {

class CameraSystem;

/// The common part of all interfaces: keeps a record of each camera that was found, and lists the
/// present ones in the order in which they were first found. Records that were handed out must stay
/// valid. When there are `Limits::knownCameras`, a new camera gets the record of the camera that
/// has been absent the longest.
class CameraInterface : public Interface
{
public:
    CameraInterface(CameraSystem &system, std::string description, int32_t transportKind);

    CameraSystem &system() const { return m_system; }

    /// The present cameras; the position is the camera's "DeviceSelector" value.
    const std::vector<DeviceRecord *> &present() const { return m_present; }

    int32_t RefreshDevices(bool *changed, uint32_t timeoutMs) override;
    DeviceInfoList *GetDeviceInfoSet() override;
    const char *GetDescription() const override { return m_description.c_str(); }
    int32_t GetTransportKind() const override { return m_transportKind; }
    const char *GetVersionText() const override;
    OrvGenParam::Array *GetParamArray(int32_t *error = nullptr) override;

protected:
    void setDescription(const std::string &description);

    /// Searches for cameras within the time-out. Returns an `ErrorCode`.
    virtual int32_t discover(uint32_t timeoutMs, std::vector<DeviceFacts> &found) = 0;

    /// Creates the connector of a new camera.
    virtual std::shared_ptr<CameraConnector> makeConnector(const DeviceFacts &facts) = 0;

    /// Called when `present()` has been updated.
    virtual void refreshed() {}

private:
    struct Known
    {
        std::unique_ptr<DeviceRecord> record;
        uint64_t lastSeen; ///< the number of the search that found it last
    };

    std::size_t placeFor(DeviceFacts &&facts);
    Known *longestAbsent();

    CameraSystem &m_system;
    std::string m_description;
    const int32_t m_transportKind;
    std::vector<Known> m_known;
    std::unordered_map<std::string, std::size_t> m_places; ///< indexes in `m_known` by camera id
    std::vector<DeviceRecord *> m_present;
    uint64_t m_search = 0;
};

} // namespace OrvCam

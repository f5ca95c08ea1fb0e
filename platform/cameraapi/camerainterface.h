// SPDX-License-Identifier: MIT
#pragma once

#include "devicerecord.h"

#include <OrvCam/Interface.h>

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace OrvCam {

class CameraSystem;

/// What every interface does with the cameras that it finds: it keeps a record of each, for good,
/// and hands out those that are there, in the order in which they were first seen. It gets to know
/// `Limits::knownCameras`.
class CameraInterface : public Interface
{
public:
    CameraInterface(CameraSystem &system, std::string description, int32_t transportKind);

    CameraSystem &system() const { return m_system; }

    /// The present cameras; the position is the camera's "DeviceSelector" value.
    const std::vector<DeviceRecord *> &present() const { return m_present; }

    /// The number of cameras that were found, but are beyond `Limits::knownCameras`.
    std::size_t unlisted() const { return m_unlisted; }

    int32_t RefreshDevices(bool *changed, uint32_t timeoutMs) override;
    DeviceInfoList *GetDeviceInfoSet() override;
    const char *GetDescription() const override { return m_description.c_str(); }
    int32_t GetTransportKind() const override { return m_transportKind; }
    const char *GetVersionText() const override;
    OrvGenParam::Array *GetParamArray(int32_t *error = nullptr) override;

protected:
    void setDescription(const std::string &description);

    /// Looks for cameras, for at most so long. Returns an `ErrorCode`.
    virtual int32_t discover(uint32_t timeoutMs, std::vector<DeviceFacts> &found) = 0;

    /// For a camera that is seen for the first time.
    virtual std::shared_ptr<CameraConnector> makeConnector(const DeviceFacts &facts) = 0;

    /// `present()` is up to date again.
    virtual void refreshed() {}

private:
    static constexpr std::size_t nowhere = static_cast<std::size_t>(-1);

    std::size_t positionOf(const DeviceFacts &facts);

    CameraSystem &m_system;
    std::string m_description;
    const int32_t m_transportKind;
    std::vector<std::unique_ptr<DeviceRecord>> m_records;
    std::unordered_map<std::string, std::size_t> m_positions; ///< in `m_records`, by camera id
    std::vector<DeviceRecord *> m_present;
    std::size_t m_unlisted = 0;
};

} // namespace OrvCam

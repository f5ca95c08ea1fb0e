// SPDX-License-Identifier: MIT
#pragma once

#include "cameraconnection.h"

#include <OrvCam/Device.h>
#include <OrvCam/DeviceInfo.h>
#include <OrvCam/DeviceOpener.h>

#include <atomic>
#include <memory>
#include <optional>
#include <string>

namespace OrvCam {

class CameraInterface;

/// What is known of one camera. A text that the camera does not have is absent.
struct DeviceFacts
{
    std::optional<std::string> vendor;
    std::optional<std::string> model;
    std::optional<std::string> serial;
    std::optional<std::string> version;
    std::optional<std::string> userName;
    std::string id;     ///< unique in the system, never changes for one camera
    std::string remark; ///< something unusual that a user should know of, in English; may be empty
    int32_t accessState = AccessUnknown;

    bool operator==(const DeviceFacts &other) const;
    bool operator!=(const DeviceFacts &other) const { return !(*this == other); }

    /// The model and, to tell like ones apart, what the user calls it or else its serial number;
    /// then the remark.
    std::string displayName() const;
};

/// The camera record that every interface of this library hands out.
class DeviceRecord final : public DeviceInfo, public DeviceOpener
{
public:
    DeviceRecord(CameraInterface &parent, DeviceFacts facts,
                 std::shared_ptr<CameraConnector> connector);

    /// As of the last discovery.
    const DeviceFacts &facts() const { return m_facts; }

    /// Takes over what a discovery found out; true when it differs from what was known.
    bool update(DeviceFacts facts);

    /// Is the record of another camera from now on. Not while it is in use.
    void become(DeviceFacts facts, std::shared_ptr<CameraConnector> connector);

    /// The camera is open or being opened.
    bool isInUse() const { return m_use.use_count() > 1; }

    /// For a change between two discoveries. Leaves the texts alone; may be called on any thread.
    void setAccessState(int32_t state) { m_accessState = state; }

    /// Opens the camera; null with the reason in `error`.
    Device *open(int32_t accessMode, int32_t &error);

    Open opener() override;

    const char *GetDisplayName() const override { return m_displayName.c_str(); }
    const char *GetVendor() const override;
    const char *GetModel() const override;
    const char *GetSerial() const override;
    const char *GetVersionText() const override;
    const char *GetUserName() const override;
    int32_t GetAccessState() const override { return m_accessState; }
    Interface *GetInterface() const override;
    const char *GetId() const override { return m_facts.id.c_str(); }

private:
    CameraInterface &m_parent;
    DeviceFacts m_facts;
    std::atomic<int32_t> m_accessState;
    std::string m_displayName;
    std::shared_ptr<CameraConnector> m_connector; ///< null when it cannot be opened at all
    const std::shared_ptr<void> m_use;            ///< shared with those who open or have opened it
};

} // namespace OrvCam

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

/// The data of one camera. A text that the camera lacks is absent.
struct DeviceFacts
{
    std::optional<std::string> vendor;
    std::optional<std::string> model;
    std::optional<std::string> serial;
    std::optional<std::string> version;
    std::optional<std::string> userName;
    std::string id;     ///< unique in the system and constant for one camera
    std::string remark; ///< a remark for the user about something unusual, in English; may be empty
    int32_t accessState = AccessUnknown;

    bool operator==(const DeviceFacts &other) const;
    bool operator!=(const DeviceFacts &other) const { return !(*this == other); }

    /// The model with the user-defined name or, without one, the serial number, to distinguish
    /// cameras of the same model; then the remark.
    std::string displayName() const;
};

/// The camera record of all interfaces of this library.
class DeviceRecord final : public DeviceInfo, public DeviceOpener
{
public:
    DeviceRecord(CameraInterface &parent, DeviceFacts facts,
                 std::shared_ptr<CameraConnector> connector);

    /// As of the last search.
    const DeviceFacts &facts() const { return m_facts; }

    /// Updates the record from a search; returns true when anything has changed.
    bool update(DeviceFacts facts);

    /// Reuses the record for another camera. Precondition: it is not in use.
    void reuseFor(DeviceFacts facts, std::shared_ptr<CameraConnector> connector);

    /// The camera is open or being opened.
    bool isInUse() const { return m_use.use_count() > 1; }

    /// For a change between two searches. Does not change texts; thread-safe.
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
    std::shared_ptr<CameraConnector> m_connector; ///< null when the camera cannot be opened at all
    const std::shared_ptr<void> m_use; ///< shared with all users that open it or have opened it
};

} // namespace OrvCam

// SPDX-License-Identifier: MIT
#pragma once

#include "plug.h"

#include <OrvCam.h>
#include <cameraapi/cameradevice.h>
#include <memorynodemap.h>

#include <QByteArray>
#include <QtGlobal>

#include <atomic>
#include <functional>
#include <map>
#include <memory>

/// A camera that can be unplugged. It has two frames and the features that the main window shows.
struct PluggableCamera
{
    explicit PluggableCamera(const QByteArray &cameraName) : name(cameraName) {}

    const QByteArray name; ///< the name of its model
    Plug isPlugged;
    std::atomic<int> closed{0}; ///< number of closed connections
    std::function<void(OrvGenApi::MemoryNodeMap &)> furnish = [](auto &map) {
        map.addEnumeration("FrameAB_Selector", {{"FrameA", 0}, {"FrameB", 1}});
        map.addEnumeration("FrameMode", {{"FrameA", 0}, {"FrameB", 1}, {"DualVideo", 2}}, 2);
        map.addInteger("CurrentTemperature", 40);
        map.addInteger("CurrentFrameTime", 1000);
    };

    class Connection final : public OrvCam::CameraConnection
    {
    public:
        explicit Connection(PluggableCamera &camera) : m_camera(camera)
        {
            m_map.addString("DeviceModelName", camera.name.toStdString());
            camera.furnish(m_map);
        }
        ~Connection() override { ++m_camera.closed; }

        GenApi::INodeMap &nodeMap() override { return m_map; }
        void setListener(OrvCameraIo::RegisterIoListener *listener) override
        {
            m_camera.isPlugged.setListener(listener);
        }

    private:
        PluggableCamera &m_camera;
        OrvGenApi::MemoryNodeMap m_map;
    };

    class Connector final : public OrvCam::CameraConnector
    {
    public:
        explicit Connector(PluggableCamera &camera) : m_camera(camera) {}

        std::unique_ptr<OrvCam::CameraConnection> open(int32_t, const OrvCam::OpenProgress &,
                                                       int32_t &error) override
        {
            error = m_camera.isPlugged ? OrvCam::Success : OrvCam::ErrorGone;
            return m_camera.isPlugged ? std::make_unique<Connection>(m_camera) : nullptr;
        }

    private:
        PluggableCamera &m_camera;
    };
};

/// A device that counts its registrations. Each camera has one at most.
class CountedDevice final : public OrvCam::Device
{
public:
    /// Null if the camera is unplugged or open already.
    static CountedDevice *open(PluggableCamera &camera, OrvCam::DeviceInfo &info,
                               std::thread::id homeThread = std::this_thread::get_id())
    {
        if (counts(camera).open > 0)
            return nullptr;
        int32_t error = OrvCam::Success;
        auto *device = OrvCam::CameraDevice::open(
            nullptr, info, std::make_shared<PluggableCamera::Connector>(camera),
            OrvCam::AccessControl, error, {}, homeThread);
        return device ? new CountedDevice(camera, device) : nullptr;
    }

    struct Counts
    {
        int opened = 0;
        int open = 0;
        int events = 0; ///< number of registrations of all devices
    };
    static Counts &counts(PluggableCamera &camera)
    {
        static std::map<PluggableCamera *, Counts> all;
        return all[&camera];
    }

    OrvGenParam::Array *GetParamArray(int32_t *error) override
    {
        return m_device->GetParamArray(error);
    }
    bool IsConnected() const override { return m_device->IsConnected(); }
    OrvCam::DeviceInfo *GetDeviceInfo() const override { return m_device->GetDeviceInfo(); }
    int32_t RegisterEvent(int32_t code, OrvCam::DeviceEventCallback callback,
                          void *context) override
    {
        const int32_t error = m_device->RegisterEvent(code, callback, context);
        if (error != OrvCam::Success)
            qFatal("An event is registered twice");
        ++counts(m_camera).events;
        return error;
    }
    int32_t UnregisterEvent(int32_t code, OrvCam::DeviceEventCallback callback,
                            void *context) override
    {
        const int32_t error = m_device->UnregisterEvent(code, callback, context);
        if (error == OrvCam::Success)
            --counts(m_camera).events;
        return error;
    }
    void Release() override
    {
        if (counts(m_camera).events != 0)
            qFatal("A device is released while a thread waits for its events");
        --counts(m_camera).open;
        m_device->Release();
        delete this;
    }

private:
    CountedDevice(PluggableCamera &camera, OrvCam::Device *device)
        : m_camera(camera), m_device(device)
    {
        ++counts(camera).opened;
        ++counts(camera).open;
    }

    PluggableCamera &m_camera;
    OrvCam::Device *const m_device;
};

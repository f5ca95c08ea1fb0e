// SPDX-License-Identifier: MIT
#include "soakcamera.h"

#include <GenApi/GenApi.h>
#include <OrvGenParam.h>
#include <description/description.h>
#include <description/nodemap.h>
#include <simulation/simulatedcamera.h>

#include <stdexcept>
#include <string>

using namespace OrvCam;
using OrvCameraIo::ReadTransfer;
using OrvCameraIo::Status;
using OrvSimulation::SimulatedCamera;

/// A cable to a simulated camera, with the response time of a real camera.
class SoakCamera::Port final : public OrvCameraIo::Port
{
public:
    explicit Port(Switch isPlugged) : m_isPlugged(std::move(isPlugged)) { switchOn(); }

    std::size_t batchSize() const override { return 64; }

    void read(std::vector<ReadTransfer> &batch) override
    {
        if (*m_isPlugged)
            m_camera->read(batch);
        else
            batch.front().status = Status::NoAnswer;
    }

    Status write(uint64_t address, const std::vector<uint8_t> &bytes) override
    {
        return *m_isPlugged ? m_camera->write(address, bytes) : Status::NoAnswer;
    }

    Presence probe() override
    {
        m_isSwitchedOff |= !*m_isPlugged;
        return m_isSwitchedOff ? Presence::Forgotten : Presence::Answers;
    }

    bool reopen(const std::function<bool()> &) override
    {
        if (*m_isPlugged)
            switchOn();
        return *m_isPlugged;
    }

private:
    void switchOn()
    {
        OrvSimulation::CameraIdentity identity;
        identity.serial = "SOAK";
        m_camera.reset();
        m_camera = SimulatedCamera(identity).port();
        m_isSwitchedOff = false;
    }

    const Switch m_isPlugged;
    std::unique_ptr<OrvCameraIo::Port> m_camera;
    bool m_isSwitchedOff = false;
};

class SoakCamera::Connection final : public CameraConnection
{
public:
    explicit Connection(Switch isPlugged)
        : m_nodeMap(OrvDescription::Description::shared(*SimulatedCamera::description(), "soak"),
                    std::make_unique<Port>(std::move(isPlugged)))
    {
    }

    GenApi::INodeMap &nodeMap() override { return m_nodeMap; }
    void setListener(OrvCameraIo::RegisterIoListener *listener) override
    {
        m_nodeMap.setListener(listener);
    }

private:
    OrvDescription::NodeMap m_nodeMap;
};

class SoakCamera::Connector final : public CameraConnector
{
public:
    explicit Connector(Switch isPlugged) : m_isPlugged(std::move(isPlugged)) {}

    std::unique_ptr<CameraConnection> open(int32_t, const OpenProgress &, int32_t &error) override
    {
        error = *m_isPlugged ? Success : ErrorGone;
        return *m_isPlugged ? std::make_unique<Connection>(m_isPlugged) : nullptr;
    }

private:
    const Switch m_isPlugged;
};

class SoakCamera::Info final : public DeviceInfo
{
public:
    const char *GetDisplayName() const override { return "Soaked camera"; }
    const char *GetVendor() const override { return nullptr; }
    const char *GetModel() const override { return nullptr; }
    const char *GetSerial() const override { return nullptr; }
    const char *GetVersionText() const override { return nullptr; }
    const char *GetUserName() const override { return nullptr; }
    int32_t GetAccessState() const override { return AccessReadWrite; }
    Interface *GetInterface() const override { return nullptr; }
    const char *GetId() const override { return "soak"; }
};

Device *SoakCamera::open()
{
    static Info info;
    int32_t error = Success;
    Device *device = CameraDevice::open(nullptr, info, std::make_shared<Connector>(m_isPlugged),
                                        AccessControl, error);
    if (!device)
        throw std::runtime_error("the camera cannot be opened: " + std::to_string(error));
    return device;
}

void SoakCamera::changeSomething(Device &device, std::mt19937 &random)
{
    OrvGenParam::Array *params = device.GetParamArray();
    GenApi::INodeMap *map = params ? params->GetNodeMap() : nullptr;
    if (!map)
        return;
    GenApi::NodeList_t nodes;
    map->GetNodes(nodes);
    GenApi::INode *node = nodes[random() % nodes.size()];
    try {
        if (!node->IsFeature() || !GenApi::IsWritable(node->GetAccessMode()))
            return;
        if (auto *integer = dynamic_cast<GenApi::IInteger *>(node)) {
            const auto range =
                static_cast<uint64_t>(integer->GetMax()) - static_cast<uint64_t>(integer->GetMin());
            const uint64_t steps = range / static_cast<uint64_t>(integer->GetInc());
            const uint64_t step = steps > 0 ? random() % steps : 0;
            integer->SetValue(integer->GetMin() + static_cast<int64_t>(step) * integer->GetInc());
        } else if (auto *real = dynamic_cast<GenApi::IFloat *>(node)) {
            const double part = static_cast<double>(random() % 1000) / 1000;
            real->SetValue(real->GetMin() + (real->GetMax() - real->GetMin()) * part);
        } else if (auto *boolean = dynamic_cast<GenApi::IBoolean *>(node)) {
            boolean->SetValue(random() % 2 != 0);
        } else if (auto *enumeration = dynamic_cast<GenApi::IEnumeration *>(node)) {
            GenApi::NodeList_t entries;
            enumeration->GetEntries(entries);
            GenApi::CEnumEntryPtr entry(entries[random() % entries.size()]);
            enumeration->SetIntValue(entry->GetValue());
        }
    } catch (const GenICam::GenericException &) {
        // A camera may refuse any random value.
    }
}

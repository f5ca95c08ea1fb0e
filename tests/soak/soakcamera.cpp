// SPDX-License-Identifier: MIT
#include "soakcamera.h"

#include <GenApi/GenApi.h>
#include <OrvGenParam.h>
#include <aravis/nodemap.h>

#include <stdexcept>
#include <string>

using namespace OrvCam;

class SoakCamera::Connection final : public CameraConnection
{
public:
    Connection(const std::atomic<bool> &isPlugged,
               std::unique_ptr<OrvSimulation::SimulatedCamera> camera)
        : m_isPlugged(isPlugged)
        , m_camera(std::move(camera))
        , m_nodeMap(OrvAravis::NodeMap::open(m_camera->device()))
    {
    }

    GenApi::INodeMap &nodeMap() override { return *m_nodeMap; }
    bool isAlive() override { return m_isPlugged; }

private:
    const std::atomic<bool> &m_isPlugged;
    const std::unique_ptr<OrvSimulation::SimulatedCamera> m_camera;
    const std::unique_ptr<OrvAravis::NodeMap> m_nodeMap;
};

class SoakCamera::Connector final : public CameraConnector
{
public:
    explicit Connector(SoakCamera &camera) : m_camera(camera) {}

    std::unique_ptr<CameraConnection> open(int32_t, int32_t &error) override
    {
        return m_camera.connect(error);
    }

private:
    SoakCamera &m_camera;
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

void SoakCamera::plugIn()
{
    // A device keeps what it had of an unplugged camera, so the next one needs another number.
    static unsigned number = 0;
    OrvSimulation::CameraIdentity identity;
    identity.serial = "SOAK-" + std::to_string(++number);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_camera = std::make_unique<OrvSimulation::SimulatedCamera>(identity);
    m_isPlugged = true;
}

Device *SoakCamera::open()
{
    static Info info;
    int32_t error = Success;
    Device *device = CameraDevice::open(nullptr, info, std::make_shared<Connector>(*this),
                                        AccessControl, error, 10);
    if (!device)
        throw std::runtime_error("the camera cannot be opened: " + std::to_string(error));
    return device;
}

std::unique_ptr<CameraConnection> SoakCamera::connect(int32_t &error)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_isPlugged || !m_camera) {
        error = ErrorGone;
        return nullptr;
    }
    error = Success;
    return std::make_unique<Connection>(m_isPlugged, std::move(m_camera));
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
        // The camera refuses; so it would others.
    }
}

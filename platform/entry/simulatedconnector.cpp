// SPDX-License-Identifier: MIT
#include "simulatedconnector.h"

#include "simulatedcamera.h"
#include "simulatedinterface.h"

#include <aravis/nodemap.h>

#include <GenApi/GenApi.h>

using namespace OrvCam;

namespace OrvSimulation {

namespace {

class SimulatedConnection final : public CameraConnection
{
public:
    explicit SimulatedConnection(const CameraIdentity &identity)
        : m_camera(identity), m_nodeMap(OrvAravis::NodeMap::open(m_camera.device()))
    {
        carryOutCommandsAtOnce();
    }

    GenApi::INodeMap &nodeMap() override { return *m_nodeMap; }
    bool isAlive() override { return true; }

private:
    /// A camera has carried out most commands before it acknowledges them; whoever reads after
    /// executing one sees the result.
    void carryOutCommandsAtOnce()
    {
        GenApi::NodeList_t nodes;
        m_nodeMap->GetNodes(nodes);
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            if (nodes[i]->GetPrincipalInterfaceType() == GenApi::intfICommand)
                GenApi::Register(nodes[i], [this](GenApi::INode *) { m_camera.advance(0); });
        }
    }

    SimulatedCamera m_camera;
    const std::unique_ptr<OrvAravis::NodeMap> m_nodeMap;
};

int32_t refusal(int32_t accessState, int32_t accessMode)
{
    switch (accessState) {
    case AccessSubnetMismatch:
        return ErrorWrongSubnet;
    case AccessNone:
        return ErrorBusy;
    case AccessReadOnly:
        return accessMode == AccessControl ? ErrorBusy : Success;
    default:
        return Success;
    }
}

} // namespace

SimulatedConnector::SimulatedConnector(std::shared_ptr<const SimulatedEntry> camera)
    : m_camera(std::move(camera))
{
}

std::unique_ptr<CameraConnection> SimulatedConnector::open(int32_t accessMode, int32_t &error)
{
    error = refusal(m_camera->accessState, accessMode);
    if (error != Success)
        return nullptr;
    try {
        return std::make_unique<SimulatedConnection>(m_camera->identity);
    } catch (const GenICam::AccessException &) {
        error = ErrorBusy;
    } catch (const GenICam::GenericException &) {
        error = ErrorFailed;
    }
    return nullptr;
}

} // namespace OrvSimulation

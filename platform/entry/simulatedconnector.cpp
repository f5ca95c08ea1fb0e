// SPDX-License-Identifier: MIT
#include "simulatedconnector.h"

#include "simulatedinterface.h"

#include <simulation/simulatedcamera.h>

#include <Base/GCException.h>

using OrvSimulation::SimulatedCamera;

namespace OrvCam {

namespace {

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

OpenedCamera SimulatedConnector::openPort(int32_t accessMode, const OpenProgress &, int32_t &error)
{
    error = refusal(m_camera->accessState, accessMode);
    if (error != Success)
        return {};
    try {
        // The port keeps the camera alive.
        return {SimulatedCamera(m_camera->identity).port(), SimulatedCamera::description()};
    } catch (const GenICam::AccessException &) {
        error = ErrorBusy;
    } catch (const GenICam::GenericException &) {
        error = ErrorFailed;
    }
    return {};
}

} // namespace OrvCam

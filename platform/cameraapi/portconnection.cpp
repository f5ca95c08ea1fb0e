// SPDX-License-Identifier: MIT
#include "portconnection.h"

#include <description/description.h>

namespace OrvCam {

PortConnection::PortConnection(std::unique_ptr<OrvCameraIo::Port> port,
                               const std::string &description)
    : m_nodeMap(OrvDescription::Description::shared(description, "The camera's description"),
                std::move(port))
{
}

void PortConnection::setListener(OrvCameraIo::RegisterIoListener *listener)
{
    m_nodeMap.setListener(listener);
}

std::unique_ptr<CameraConnection> PortConnector::open(int32_t accessMode,
                                                      const OpenProgress &progress, int32_t &error)
{
    error = ErrorFailed;
    try {
        OpenedCamera opened = openPort(accessMode, progress, error);
        if (!opened.port)
            return nullptr;
        error = ErrorBadDescription;
        auto connection =
            std::make_unique<PortConnection>(std::move(opened.port), *opened.description);
        error = Success;
        return connection;
    } catch (const GenICam::GenericException &e) {
        if (progress.explain)
            progress.explain(e.GetDescription());
    } catch (const std::exception &) {
    }
    return nullptr;
}

} // namespace OrvCam

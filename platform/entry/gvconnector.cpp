// SPDX-License-Identifier: MIT
#include "gvconnector.h"

#include "opencode.h"

#include <gigevision/gvopen.h>

namespace OrvCam {

namespace {

OrvGigEVision::Progress inPercent(const OpenProgress &progress)
{
    if (!progress.report)
        return nullptr;
    return [report = progress.report](std::size_t done, std::size_t total) {
        if (total > 0)
            report(static_cast<int>(done * 100 / total));
    };
}

} // namespace

GvConnector::GvConnector(std::string adapterName, std::string cameraId)
    : m_adapterName(std::move(adapterName)), m_cameraId(std::move(cameraId))
{
}

OpenedCamera GvConnector::openPort(int32_t accessMode, const OpenProgress &progress, int32_t &error)
{
    const auto mode = accessMode == AccessControl ? OrvGigEVision::OpenMode::Control
                                                  : OrvGigEVision::OpenMode::Monitor;
    auto result = OrvGigEVision::openCamera(m_adapterName, m_cameraId, mode, inPercent(progress),
                                            progress.isCancelled);
    error = codeOf(result.failure);
    if (!result.port && progress.explain)
        progress.explain(result.message);
    return {std::move(result.port), std::move(result.description)};
}

} // namespace OrvCam

// SPDX-License-Identifier: MIT
#include "gvopen.h"

#include "gvcontrol.h"

namespace OrvGigEVision {

using OrvCameraIo::Status;

namespace {

using Failure = OpenResult::Failure;

OpenResult failed(Failure failure, const std::string &message)
{
    OpenResult result;
    result.failure = failure;
    result.message = message;
    return result;
}

OpenResult notConnected(Status status)
{
    if (status == Status::NoAnswer)
        return failed(Failure::Gone, "The camera does not answer any more.");
    if (status == Status::AccessDenied)
        return failed(Failure::Busy, "Another program controls the camera.");
    return failed(Failure::Failed, "The camera does not let itself be controlled.");
}

Failure failureOf(FetchedDescription::Failure failure)
{
    switch (failure) {
    case FetchedDescription::Failure::None:
        return Failure::None;
    case FetchedDescription::Failure::NoAnswer:
        return Failure::Gone;
    case FetchedDescription::Failure::Cancelled:
        return Failure::Cancelled;
    case FetchedDescription::Failure::Unusable:
        break;
    }
    return Failure::BadDescription;
}

} // namespace

OpenResult openCamera(const std::string &adapterName, const std::string &cameraId, OpenMode mode,
                      const Progress &progress, const std::function<bool()> &isCancelled)
{
    const auto wantsToStop = [&] { return isCancelled && isCancelled(); };
    const auto adapter = adapterCalled(adapterName);
    if (!adapter)
        return failed(Failure::Gone, "The network adapter does not exist any more.");
    const auto camera = findCamera(*adapter, cameraId, searchTime, isCancelled);
    if (wantsToStop())
        return failed(Failure::Cancelled, "Opening the camera was cancelled.");
    if (!camera)
        return failed(Failure::Gone, "The camera does not answer.");
    if (!camera->isReachable)
        return failed(Failure::WrongSubnet,
                      "The camera's IP address is not in the adapter's subnet.");

    OpenResult result;
    auto port = std::make_unique<GvPort>(*adapter, cameraId, camera->identity.ip, mode);
    const Status status = port->connect();
    if (status != Status::Done)
        return notConnected(status);
    FetchedDescription description =
        fetchDescription(port->channel(), camera->identity, progress, isCancelled);
    result.failure = failureOf(description.failure);
    result.message = description.message;
    if (result.failure != Failure::None)
        return result;
    port->setDescription(description.mark);
    result.port = std::move(port);
    result.description = std::move(description.text);
    return result;
}

} // namespace OrvGigEVision

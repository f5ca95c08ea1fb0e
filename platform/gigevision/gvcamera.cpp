// SPDX-License-Identifier: MIT
#include "gvcamera.h"

#include <genapi/nodes/numbers.h>

namespace OrvGigEVision {

namespace {

bool isMulticast(uint64_t mac)
{
    return mac >> 40 & 1;
}

std::string longId(const GvCamera &camera)
{
    return camera.name() + " at " + ipText(camera.identity.ip) + ' ' + camera.identity.serial;
}

} // namespace

std::string GvCamera::name() const
{
    if (identity.mac == 0)
        return identity.manufacturer + "-" + identity.serial;
    return OrvGenApi::integerToText(static_cast<int64_t>(identity.mac), GenApi::MACAddress);
}

std::string GvCamera::id() const
{
    return isNameShared ? longId(*this) : name();
}

bool GvCamera::isCalled(const std::string &id) const
{
    return id == name() || id == longId(*this);
}

std::optional<GvCamera> parseCamera(const Gvcp::Acknowledge &answer, uint32_t sender,
                                    const NetworkAdapter &adapter)
{
    auto identity = Gvcp::parseIdentity(answer);
    if (answer.status != Gvcp::StatusSuccess || !identity || identity->ip != sender ||
        isMulticast(identity->mac))
        return std::nullopt;
    GvCamera camera;
    camera.identity = std::move(*identity);
    camera.isReachable = adapter.addressFor(sender) != nullptr;
    return camera;
}

} // namespace OrvGigEVision

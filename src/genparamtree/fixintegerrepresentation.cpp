// SPDX-License-Identifier: MIT
#include "genparamtree/fixintegerrepresentation.h"

#include <GenApi/INode.h>

#include <algorithm>
#include <iterator>

namespace {
constexpr char macAddressFeature[] = "GevMACAddress";

const char *const ipAddressFeatures[] = {
    "GevCurrentIPAddress",
    "GevCurrentSubnetMask",
    "GevCurrentDefaultGateway",
    "GevPersistentIPAddress",
    "GevPersistentSubnetMask",
    "GevPersistentDefaultGateway",
    "GevPrimaryApplicationIPAddress",
    "GevSCDA",
};
} // namespace

GenApi::ERepresentation FixIntegerRepresentation(GenApi::IInteger *node)
{
    const GenApi::ERepresentation declared = node->GetRepresentation();
    const GenICam::gcstring name = node->GetNode()->GetName(false);
    if (name == macAddressFeature)
        return GenApi::MACAddress;

    const bool isIpAddress = std::any_of(std::begin(ipAddressFeatures), std::end(ipAddressFeatures),
                                         [&name](const char *feature) { return name == feature; });
    return isIpAddress ? GenApi::IPV4Address : declared;
}

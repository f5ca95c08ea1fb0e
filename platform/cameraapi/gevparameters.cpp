// SPDX-License-Identifier: MIT
#include "gevparameters.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

using namespace OrvGenApi;

namespace OrvCam {

namespace {

[[noreturn]] void throwAs(int32_t code)
{
    switch (code) {
    case ErrorTimeout:
    case ErrorGone:
        throw GenICam::TimeoutException("The camera does not answer", __FILE__, __LINE__);
    case ErrorAccessDenied:
    case ErrorBusy:
        throw GenICam::AccessException("The camera refuses the address", __FILE__, __LINE__);
    case ErrorInvalidArgument:
        throw GenICam::InvalidArgumentException("This is no address for a camera", __FILE__,
                                                __LINE__);
    default:
        throw GenICam::RuntimeException("The address could not be set", __FILE__, __LINE__);
    }
}

/// The value of "DeviceSelector" when the selected camera is absent.
constexpr int64_t noRow = -1;

} // namespace

bool GevAddresses::reaches(const GevAddresses &camera) const
{
    return camera.ip != 0 && (camera.ip & mask) == (ip & mask);
}

GevParameters::GevParameters(GevNetwork &network)
    : m_network(network), m_map("GigE Vision interface"), m_array(declare())
{
    networkChanged();
}

DeclaredNodeMap &GevParameters::declare()
{
    addAdapter();
    addCamera();
    addForce();
    return m_map;
}

DeclaredInteger &GevParameters::addAddress(const char *name, GenApi::ERepresentation representation,
                                           const char *category)
{
    DeclaredInteger &node = m_map.add<DeclaredInteger>(name, category);
    node.setLimits(0, representation == GenApi::MACAddress ? 0xFFFFFFFFFFFF : 0xFFFFFFFF);
    node.setRepresentation(representation);
    return node;
}

void GevParameters::addAdapter()
{
    const auto add = [this](const char *name, GenApi::ERepresentation representation, auto part) {
        DeclaredInteger &node = addAddress(name, representation, "InterfaceInformation");
        node.bind([this, part] { return static_cast<int64_t>(m_network.adapter().*part); });
        node.setAccessMode(GenApi::RO);
        m_adapterNodes.push_back(&node);
    };
    add("GevInterfaceMACAddress", GenApi::MACAddress, &GevAddresses::mac);
    add("GevInterfaceSubnetIPAddress", GenApi::IPV4Address, &GevAddresses::ip);
    add("GevInterfaceSubnetMask", GenApi::IPV4Address, &GevAddresses::mask);
}

void GevParameters::addCamera()
{
    m_selector = &m_map.add<DeclaredInteger>("DeviceSelector", "DeviceEnumeration");
    m_selector->bind([this] { return m_row; }, [this](int64_t row) { m_row = row; });
    const auto add = [this](const char *name, GenApi::ERepresentation representation, auto part) {
        DeclaredInteger &node = addAddress(name, representation, "DeviceEnumeration");
        node.bind([this, part] { return static_cast<int64_t>(selected().*part); });
        m_selector->select(node);
        m_cameraNodes.push_back(&node);
    };
    add("GevDeviceMACAddress", GenApi::MACAddress, &GevAddresses::mac);
    add("GevDeviceIPAddress", GenApi::IPV4Address, &GevAddresses::ip);
    add("GevDeviceSubnetMask", GenApi::IPV4Address, &GevAddresses::mask);
    add("GevDeviceGateway", GenApi::IPV4Address, &GevAddresses::gateway);
}

void GevParameters::addForce()
{
    addForced("GevDeviceForceIPAddress", &GevAddresses::ip);
    addForced("GevDeviceForceSubnetMask", &GevAddresses::mask);
    addForced("GevDeviceForceGateway", &GevAddresses::gateway);
    m_command = &m_map.add<DeclaredCommand>("GevDeviceForceIP", "DeviceEnumeration");
    m_command->onExecute([this] { force(); });
    m_selector->select(*m_command);
}

void GevParameters::addForced(const char *name, uint32_t GevAddresses::*part)
{
    DeclaredInteger &node = addAddress(name, GenApi::IPV4Address, "DeviceEnumeration");
    node.bind([this, part] { return static_cast<int64_t>(forced().*part); },
              [this, part](int64_t value) {
                  GevAddresses wanted = forced();
                  wanted.*part = static_cast<uint32_t>(value);
                  m_forced[wanted.mac] = wanted;
              });
    m_selector->select(node);
    m_forceNodes.push_back(&node);
}

GevAddresses GevParameters::selected() const
{
    const auto row = static_cast<std::size_t>(m_row);
    if (row >= m_cameras.size())
        throw GenICam::AccessException("The selected camera is gone", __FILE__, __LINE__);
    return m_cameras[row];
}

GevAddresses GevParameters::forced() const
{
    const GevAddresses camera = selected();
    const auto found = m_forced.find(camera.mac);
    return found == m_forced.end() ? camera : found->second;
}

void GevParameters::force()
{
    const int32_t error = m_network.forceIp(forced());
    if (error != Success)
        throwAs(error);
    networkChanged();
}

void GevParameters::networkChanged()
{
    const std::vector<GevAddresses> former = std::exchange(m_cameras, m_network.cameras());
    const auto count = static_cast<int64_t>(m_cameras.size());
    m_selector->setLimits(0, count ? count - 1 : 0);
    const auto row = static_cast<std::size_t>(m_row);
    if (row < former.size())
        follow(former[row]);
    forgetOthers();
    m_selector->setAccessMode(count ? GenApi::RW : GenApi::NA);
    for (DeclaredInteger *node : m_cameraNodes)
        node->setAccessMode(count ? GenApi::RO : GenApi::NA);
    for (DeclaredInteger *node : m_forceNodes)
        node->setAccessMode(count ? GenApi::RW : GenApi::NA);
    m_command->setAccessMode(count ? GenApi::WO : GenApi::NA);
    for (DeclaredInteger *node : m_adapterNodes)
        node->changed();
}

/// Keeps a camera selected when its row changes. No other camera becomes selected implicitly, not
/// even one with the same MAC address.
void GevParameters::follow(const GevAddresses &camera)
{
    std::vector<std::size_t> same;
    for (std::size_t row = 0; row < m_cameras.size(); ++row) {
        if (m_cameras[row].mac == camera.mac)
            same.push_back(row);
    }
    const auto found = std::find_if(same.begin(), same.end(), [&](std::size_t row) {
        return same.size() == 1 || m_cameras[row].ip == camera.ip;
    });
    const int64_t row = found == same.end() ? noRow : static_cast<int64_t>(*found);
    if (std::exchange(m_row, row) != row)
        m_selector->changed();
}

/// Removes the addresses to force on absent cameras.
void GevParameters::forgetOthers()
{
    std::set<uint64_t> present;
    for (const GevAddresses &camera : m_cameras)
        present.insert(camera.mac);
    for (auto forced = m_forced.begin(); forced != m_forced.end();)
        forced = present.count(forced->first) ? std::next(forced) : m_forced.erase(forced);
}

} // namespace OrvCam

// SPDX-License-Identifier: MIT
#include "simulatedsystem.h"

namespace OrvCam {

namespace {

SimulatedEntry camera(const std::string &serial, const std::string &userName)
{
    SimulatedEntry entry;
    entry.identity.serial = serial;
    entry.identity.userName = userName;
    return entry;
}

SimulatedEntry networkCamera(unsigned number, const std::string &userName)
{
    SimulatedEntry entry = camera("SIM-000" + std::to_string(number), userName);
    entry.identity.macAddress = 0x02005E100000 + number;
    entry.identity.ipAddress = 0xC0000214 + number; // 192.0.2.21 and following
    return entry;
}

} // namespace

SimulatedSystem::SimulatedSystem()
{
    addNetworks();
    addUsb();
    addOthers();
}

std::vector<CameraInterface *> SimulatedSystem::interfaces()
{
    std::vector<CameraInterface *> all;
    for (const auto &interface : m_interfaces)
        all.push_back(interface.get());
    return all;
}

SimulatedInterface &SimulatedSystem::add(std::string description, int32_t transportKind,
                                         std::vector<SimulatedEntry> cameras)
{
    m_interfaces.push_back(std::make_unique<SimulatedInterface>(*this, std::move(description),
                                                                transportKind, std::move(cameras)));
    return *m_interfaces.back();
}

void SimulatedSystem::addNetworks()
{
    SimulatedEntry elsewhere = networkCamera(3, "Packing");
    elsewhere.identity.ipAddress = 0xA9FE0715; // 169.254.7.21
    elsewhere.identity.subnetMask = 0xFFFF0000;
    elsewhere.identity.gateway = 0;
    elsewhere.accessState = AccessSubnetMismatch;
    SimulatedEntry taken = networkCamera(4, "Sorting");
    taken.accessState = AccessNone;

    auto &network = add("Simulated Network Adapter", TransportGigEVision,
                        {networkCamera(1, ""), networkCamera(2, "Inspection"), elsewhere, taken});
    network.setAdapter({0x02005E00000A, 0xC000020A, 0xFFFFFF00, 0}); // 192.0.2.10
    auto &unused = add("Simulated Network Adapter #2 (no cameras)", TransportGigEVision);
    unused.setAdapter({0x02005E00000B, 0xC633640A, 0xFFFFFF00, 0}); // 198.51.100.10
}

void SimulatedSystem::addUsb()
{
    SimulatedEntry watched = camera("SIM-0012", "Microscope");
    watched.accessState = AccessReadOnly;
    SimulatedEntry wordy = camera("SIM-0013", "");
    wordy.identity.vendor = "Orv Simulation, Division of Unreasonably Long Manufacturer Names";
    wordy.identity.model = "DualFrame 12M Colour Extended Temperature Range, Right-Angled "
                           "Housing, Locking Connector";
    add("Simulated USB Host Controller", TransportUsb3Vision,
        {camera("SIM-0011", "Téléobjectif"), watched, wordy});
}

void SimulatedSystem::addOthers()
{
    SimulatedEntry japanese = camera("SIM-0021", "検査カメラ");
    japanese.identity.vendor = "株式会社シミュレーション";
    SimulatedEntry arabic = camera("SIM-0022", "كاميرا");
    SimulatedEntry silent = camera("SIM-0023", "");
    silent.accessState = AccessUnknown;
    silent.isNameless = true;
    add("Simulated Custom Interface", TransportCustom, {japanese, arabic, silent});
    add("Simulated Custom Interface #2 (cannot list cameras)", TransportCustom).refuseToList();
}

} // namespace OrvCam

// SPDX-License-Identifier: MIT
#include "networkadapter.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netpacket/packet.h>

#include <algorithm>
#include <map>
#include <memory>

namespace OrvGigEVision {

namespace {

bool mayHaveCameras(const ifaddrs &entry)
{
    const unsigned needed = IFF_UP | IFF_BROADCAST;
    return (entry.ifa_flags & needed) == needed && !(entry.ifa_flags & IFF_LOOPBACK);
}

uint32_t ipOf(const sockaddr *address)
{
    return ntohl(reinterpret_cast<const sockaddr_in *>(address)->sin_addr.s_addr);
}

uint64_t macOf(const sockaddr_ll &address)
{
    uint64_t mac = 0;
    if (address.sll_halen == 6) {
        for (int i = 0; i < 6; ++i)
            mac = mac << 8 | address.sll_addr[i];
    }
    return mac;
}

void addTo(NetworkAdapter &adapter, const ifaddrs &entry)
{
    if (entry.ifa_addr->sa_family == AF_PACKET) {
        const auto &link = *reinterpret_cast<const sockaddr_ll *>(entry.ifa_addr);
        adapter.mac = macOf(link);
    } else if (entry.ifa_addr->sa_family == AF_INET && entry.ifa_netmask) {
        adapter.addresses.push_back({ipOf(entry.ifa_addr), ipOf(entry.ifa_netmask)});
    }
}

/// An address with a label of its own ("eth0:1") belongs to the adapter before the colon.
std::string adapterName(const char *label)
{
    const std::string name = label;
    return name.substr(0, name.find(':'));
}

} // namespace

const NetworkAdapter::Address *NetworkAdapter::addressFor(uint32_t camera) const
{
    const auto found = std::find_if(addresses.begin(), addresses.end(),
                                    [&](const Address &own) { return own.reaches(camera); });
    return found == addresses.end() ? nullptr : &*found;
}

std::vector<NetworkAdapter> networkAdapters()
{
    ifaddrs *first = nullptr;
    if (getifaddrs(&first) != 0)
        return {};
    const std::unique_ptr<ifaddrs, void (*)(ifaddrs *)> owner(first, freeifaddrs);

    std::map<std::string, NetworkAdapter> byName;
    for (const ifaddrs *entry = first; entry; entry = entry->ifa_next) {
        if (entry->ifa_addr && mayHaveCameras(*entry))
            addTo(byName[adapterName(entry->ifa_name)], *entry);
    }

    std::vector<NetworkAdapter> adapters;
    for (auto &[name, adapter] : byName) {
        adapter.name = name;
        adapter.index = static_cast<int>(if_nametoindex(name.c_str()));
        if (adapter.index != 0 && !adapter.addresses.empty())
            adapters.push_back(std::move(adapter));
    }
    std::sort(adapters.begin(), adapters.end(),
              [](const auto &a, const auto &b) { return a.index < b.index; });
    return adapters;
}

std::string ipText(uint32_t ip)
{
    const in_addr address{htonl(ip)};
    char text[INET_ADDRSTRLEN];
    return inet_ntop(AF_INET, &address, text, sizeof text);
}

} // namespace OrvGigEVision

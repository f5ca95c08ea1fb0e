// SPDX-License-Identifier: MIT
#include "networkadapter.h"

#include <genapi/nodes/numbers.h>

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <netpacket/packet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
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
    adapter.isConnected = entry.ifa_flags & IFF_RUNNING;
    if (entry.ifa_addr->sa_family == AF_PACKET) {
        const auto &link = *reinterpret_cast<const sockaddr_ll *>(entry.ifa_addr);
        adapter.mac = macOf(link);
    } else if (entry.ifa_addr->sa_family == AF_INET && entry.ifa_netmask) {
        adapter.addresses.push_back({ipOf(entry.ifa_addr), ipOf(entry.ifa_netmask)});
    }
}

/// An address with a label ("eth0:1") belongs to the adapter before the colon.
std::string adapterName(const char *label)
{
    const std::string name = label;
    return name.substr(0, name.find(':'));
}

/// The properties of an adapter; empty on failure.
std::vector<char> linkFacts(int index)
{
    struct
    {
        nlmsghdr header;
        ifinfomsg link;
    } question{};
    question.header.nlmsg_len = sizeof question;
    question.header.nlmsg_type = RTM_GETLINK;
    question.header.nlmsg_flags = NLM_F_REQUEST;
    question.link.ifi_index = index;

    const int netlink = socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE);
    if (netlink < 0)
        return {};
    std::vector<char> answer(32 << 10);
    const bool isSent = send(netlink, &question, sizeof question, 0) >= 0;
    const ssize_t size = isSent ? recv(netlink, answer.data(), answer.size(), 0) : 0;
    close(netlink);
    answer.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return answer;
}

/// True when another adapter, such as a bridge or a bond, receives all its packets.
bool hasMaster(int index)
{
    const std::vector<char> answer = linkFacts(index);
    nlmsghdr header = {};
    std::memcpy(&header, answer.data(), std::min(answer.size(), sizeof header));
    if (header.nlmsg_type != RTM_NEWLINK)
        return false;
    const std::size_t end = std::min<std::size_t>(answer.size(), header.nlmsg_len);
    rtattr fact = {};
    for (std::size_t at = NLMSG_SPACE(sizeof(ifinfomsg)); at + sizeof fact <= end;
         at += RTA_ALIGN(fact.rta_len)) {
        std::memcpy(&fact, answer.data() + at, sizeof fact);
        if (fact.rta_type == IFLA_MASTER)
            return true;
        if (fact.rta_len < sizeof fact)
            return false;
    }
    return false;
}

bool isUseful(const NetworkAdapter &adapter)
{
    if (adapter.index == 0)
        return false;
    return !adapter.addresses.empty() || (adapter.mac != 0 && !hasMaster(adapter.index));
}

} // namespace

bool NetworkAdapter::Address::reaches(uint32_t other) const
{
    const bool isUnicast = other >> 24 != 0 && other >> 24 != IN_LOOPBACKNET &&
                           !IN_MULTICAST(other) && !IN_BADCLASS(other);
    if (!isUnicast || other == ip || ((other ^ ip) & mask) != 0)
        return false;
    const uint32_t hostBits = ~mask;
    if (hostBits <= 1) // a point-to-point link
        return true;
    return (other & hostBits) != 0 && (other & hostBits) != hostBits;
}

const NetworkAdapter::Address *NetworkAdapter::addressFor(uint32_t camera) const
{
    const auto isCamera = [&](const Address &own) { return own.ip == camera; };
    if (std::any_of(addresses.begin(), addresses.end(), isCamera))
        return nullptr;
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
        if (isUseful(adapter))
            adapters.push_back(std::move(adapter));
    }
    std::sort(adapters.begin(), adapters.end(),
              [](const auto &a, const auto &b) { return a.index < b.index; });
    return adapters;
}

std::string ipText(uint32_t ip)
{
    return OrvGenApi::integerToText(ip, GenApi::IPV4Address);
}

} // namespace OrvGigEVision

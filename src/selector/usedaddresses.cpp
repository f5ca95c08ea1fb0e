// SPDX-License-Identifier: MIT
#include "selector/usedaddresses.h"

#include "base/ip4validator.h"

namespace {

const unsigned int Loopback = 127;
const unsigned int FirstMulticast = 224;
const unsigned int FirstReserved = 240;
const unsigned int EverybodyHere = 0xFFFFFFFF;

} // namespace

void UsedAddresses::addAdapter(unsigned int address, const QString &name)
{
    m_owners[address] = tr("The address %1 is that of the network adapter %2.")
                            .arg(IP4Validator::getIpStr(address), name);
}

void UsedAddresses::addCamera(unsigned int address, const QString &name)
{
    m_owners[address] =
        tr("The camera %2 has the address %1.").arg(IP4Validator::getIpStr(address), name);
}

QString UsedAddresses::fault(unsigned int address, unsigned int mask) const
{
    const QString text = impossible(address, mask);
    return text.isEmpty() ? m_owners.value(address) : text.arg(IP4Validator::getIpStr(address));
}

QString UsedAddresses::impossible(unsigned int address, unsigned int mask)
{
    const unsigned int firstGroup = address >> 24;
    if (firstGroup == 0)
        return tr("No camera can have the address %1: it begins with 0.");
    if (firstGroup == Loopback)
        return tr("No camera can have the address %1: it is a loopback address.");
    if (firstGroup >= FirstMulticast && firstGroup < FirstReserved)
        return tr("No camera can have the address %1: it is a multicast address.");
    if (address == EverybodyHere)
        return tr("No camera can have the address %1: it is a broadcast address.");
    if (firstGroup >= FirstReserved)
        return tr("No camera can have the address %1: it is reserved.");

    const unsigned int hostBits = ~mask;
    const unsigned int host = address & hostBits;
    if (hostBits <= 1) // a single host, or a point-to-point link
        return QString();
    if (host == hostBits)
        return tr("No camera can have the address %1: it is a broadcast address.");
    if (host == 0)
        return tr("No camera can have the address %1: it is that of the subnet.");
    return QString();
}

unsigned int UsedAddresses::firstFree(unsigned int first, int step, unsigned int mask) const
{
    const unsigned int hostBits = ~mask;
    unsigned int address = first;
    // Only the known addresses and the first and last ones of the subnet have faults.
    for (auto tries = m_owners.size() + 2; tries >= 0; --tries) {
        if (fault(address, mask).isEmpty())
            return address;
        const unsigned int next = address + static_cast<unsigned int>(step);
        address = (address & mask) | (next & hostBits);
    }
    return first;
}

// SPDX-License-Identifier: MIT
#include "gvcpcounter.h"

#include <QSet>
#include <QStringList>

#include <arpa/inet.h>
#include <linux/if_ether.h>
#include <linux/if_packet.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

const quint16 GvcpPort = 3956;
const quint32 ControlChannelPrivilege = 0x0a00; // read periodically as a heartbeat

quint16 word(const QByteArray &bytes, int offset)
{
    return quint16(quint8(bytes[offset]) << 8 | quint8(bytes[offset + 1]));
}

quint32 longWord(const QByteArray &bytes, int offset)
{
    return quint32(word(bytes, offset)) << 16 | word(bytes, offset + 2);
}

quint32 sizeOf(const QByteArray &packet, int kind, int offset, int length)
{
    if (kind == GvcpCommand::ReadMemory)
        return word(packet, offset + 6);
    return kind == GvcpCommand::WriteMemory ? quint32(length) - 4 : 4;
}

/// Appends the commands of one IPv4 packet.
void parse(const QByteArray &packet, QList<GvcpCommand> &commands)
{
    const int udp = packet.isEmpty() ? 0 : (packet[0] & 0xf) * 4;
    const int payload = udp + 8;
    if (packet.size() < payload + 8 || packet[9] != IPPROTO_UDP ||
        word(packet, udp + 2) != GvcpPort || quint8(packet[payload]) != 0x42)
        return;
    const int kind = word(packet, payload + 2);
    const int length = word(packet, payload + 4);
    int step = 0;
    if (kind == GvcpCommand::ReadRegister)
        step = 4;
    else if (kind == GvcpCommand::WriteRegister || kind == GvcpCommand::ReadMemory)
        step = 8;
    else if (kind == GvcpCommand::WriteMemory)
        step = length;
    if (step == 0)
        return;
    for (int i = 0; i + step <= length; i += step) {
        const quint32 address = longWord(packet, payload + 8 + i);
        if (kind != GvcpCommand::ReadRegister || address != ControlChannelPrivilege)
            commands.append({kind, address, sizeOf(packet, kind, payload + 8 + i, length)});
    }
}

} // namespace

GvcpCounter::GvcpCounter(const char *adapter)
    : m_socket(socket(AF_PACKET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, htons(ETH_P_ALL)))
{
    if (m_socket < 0)
        return;
    const int size = 16 << 20;
    setsockopt(m_socket, SOL_SOCKET, SO_RCVBUF, &size, sizeof size);
    sockaddr_ll address{};
    address.sll_family = AF_PACKET;
    address.sll_protocol = htons(ETH_P_ALL); // ETH_P_IP would miss outgoing packets
    address.sll_ifindex = static_cast<int>(if_nametoindex(adapter));
    if (bind(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0) {
        close(m_socket);
        m_socket = -1;
    }
}

GvcpCounter::~GvcpCounter()
{
    if (m_socket >= 0)
        close(m_socket);
}

QList<GvcpCommand> GvcpCounter::take()
{
    QList<GvcpCommand> commands;
    QByteArray packet(65536, '\0');
    for (;;) {
        sockaddr_ll from{};
        socklen_t size = sizeof from;
        const ssize_t received =
            recvfrom(m_socket, packet.data(), static_cast<std::size_t>(packet.size()), 0,
                     reinterpret_cast<sockaddr *>(&from), &size);
        if (received < 0)
            return commands;
        // The loopback device delivers every packet a second time, as an incoming one.
        if (from.sll_pkttype == PACKET_OUTGOING && from.sll_protocol == htons(ETH_P_IP))
            parse(packet.left(static_cast<int>(received)), commands);
    }
}

int readsIn(const QList<GvcpCommand> &commands)
{
    int reads = 0;
    for (const GvcpCommand &command : commands)
        reads += command.isRead() ? 1 : 0;
    return reads;
}

int writesIn(const QList<GvcpCommand> &commands)
{
    return int(commands.size()) - readsIn(commands);
}

QString registersReadTwice(const QList<GvcpCommand> &commands)
{
    QSet<QPair<quint32, quint32>> seen;
    QStringList twice;
    for (const GvcpCommand &command : commands) {
        if (!command.isRead())
            continue;
        const auto reg = qMakePair(command.address, command.size);
        if (seen.contains(reg))
            twice << QString("0x%1").arg(command.address, 0, 16);
        seen.insert(reg);
    }
    return twice.join(", ");
}

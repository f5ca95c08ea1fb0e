// SPDX-License-Identifier: MIT
#include "gvcpsocket.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <random>

namespace OrvGigEVision {

namespace {

void enable(int socket, int level, int option)
{
    const int on = 1;
    setsockopt(socket, level, option, &on, sizeof on);
}

/// The control data of a packet: the adapter, and this machine's address on it.
union ControlData {
    cmsghdr header; // aligns
    char bytes[CMSG_SPACE(sizeof(in_pktinfo))];
};

int adapterOf(msghdr &message)
{
    for (cmsghdr *header = CMSG_FIRSTHDR(&message); header;
         header = CMSG_NXTHDR(&message, header)) {
        if (header->cmsg_level == IPPROTO_IP && header->cmsg_type == IP_PKTINFO) {
            in_pktinfo info;
            std::memcpy(&info, CMSG_DATA(header), sizeof info);
            return info.ipi_ifindex;
        }
    }
    return 0;
}

int millisecondsUntil(Clock::time_point until)
{
    using namespace std::chrono;
    const auto left = ceil<milliseconds>(until - Clock::now()).count();
    return static_cast<int>(std::clamp<long long>(left, 0, 60000));
}

} // namespace

GvcpSocket::GvcpSocket(const NetworkAdapter &adapter)
    : m_adapter(adapter)
    , m_socket(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
    , m_wake(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    , m_lastId(static_cast<uint16_t>(std::random_device{}()))
{
    enable(m_socket, SOL_SOCKET, SO_BROADCAST);
    enable(m_socket, IPPROTO_IP, IP_PKTINFO);
    const int manyAnswers = 1 << 20;
    setsockopt(m_socket, SOL_SOCKET, SO_RCVBUF, &manyAnswers, sizeof manyAnswers);
    // Bound to the adapter's address, the socket would not receive broadcasts.
    sockaddr_in any{};
    any.sin_family = AF_INET;
    // If this fails, the first packet that is sent binds the socket.
    static_cast<void>(bind(m_socket, reinterpret_cast<const sockaddr *>(&any), sizeof any));
}

GvcpSocket::~GvcpSocket()
{
    for (const int descriptor : {m_socket, m_wake}) {
        if (descriptor >= 0)
            close(descriptor);
    }
}

void GvcpSocket::interrupt()
{
    m_isInterrupted = true;
    eventfd_write(m_wake, 1);
}

uint16_t GvcpSocket::nextId()
{
    if (++m_lastId == 0)
        ++m_lastId;
    return m_lastId;
}

void GvcpSocket::send(const Gvcp::Packet &packet, uint32_t camera)
{
    if (const auto *own = m_adapter.addressFor(camera))
        sendFrom(own->ip, packet, camera);
}

void GvcpSocket::broadcast(const Gvcp::Packet &packet)
{
    for (const auto &own : m_adapter.addresses)
        sendFrom(own.ip, packet, own.broadcast());
    // Without an address on this adapter, the system uses another one or 0.0.0.0.
    const uint32_t ownIp =
        m_adapter.addresses.empty() ? INADDR_ANY : m_adapter.addresses.front().ip;
    sendFrom(ownIp, packet, INADDR_BROADCAST);
}

void GvcpSocket::sendFrom(uint32_t ownIp, const Gvcp::Packet &packet, uint32_t ip)
{
    sockaddr_in to{};
    to.sin_family = AF_INET;
    to.sin_port = htons(Gvcp::port);
    to.sin_addr.s_addr = htonl(ip);

    iovec data{const_cast<uint8_t *>(packet.data()), packet.size()};
    ControlData control{};
    msghdr message{};
    message.msg_name = &to;
    message.msg_namelen = sizeof to;
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    message.msg_control = control.bytes;
    message.msg_controllen = sizeof control.bytes;

    in_pktinfo info{};
    info.ipi_ifindex = m_adapter.index;
    info.ipi_spec_dst.s_addr = htonl(ownIp);
    cmsghdr *header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = IPPROTO_IP;
    header->cmsg_type = IP_PKTINFO;
    header->cmsg_len = CMSG_LEN(sizeof info);
    std::memcpy(CMSG_DATA(header), &info, sizeof info);
    sendmsg(m_socket, &message, 0);
}

std::optional<Gvcp::Acknowledge> GvcpSocket::receive(Clock::time_point until)
{
    // Limited, so that a flood of packets does not block the caller.
    while (Clock::now() < until) {
        pollfd waiting[] = {{m_socket, POLLIN, 0}, {m_wake, POLLIN, 0}};
        poll(waiting, 2, millisecondsUntil(until));
        if (m_isInterrupted || waiting[0].revents & (POLLNVAL | POLLHUP))
            return std::nullopt;
        if (waiting[0].revents & POLLIN) {
            if (const auto answer = take())
                return answer;
        }
    }
    return std::nullopt;
}

bool GvcpSocket::hasPacket() const
{
    pollfd waiting{m_socket, POLLIN, 0};
    return poll(&waiting, 1, 0) > 0 && (waiting.revents & POLLIN);
}

std::optional<Gvcp::Acknowledge> GvcpSocket::take()
{
    sockaddr_in from{};
    iovec data{m_buffer, sizeof m_buffer};
    ControlData control{};
    msghdr message{};
    message.msg_name = &from;
    message.msg_namelen = sizeof from;
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    message.msg_control = control.bytes;
    message.msg_controllen = sizeof control.bytes;
    const ssize_t size = recvmsg(m_socket, &message, 0);
    if (size < 0 || adapterOf(message) != m_adapter.index || from.sin_port != htons(Gvcp::port))
        return std::nullopt;
    if (m_onlyFrom && from.sin_addr.s_addr != htonl(*m_onlyFrom))
        return std::nullopt;
    m_sender = ntohl(from.sin_addr.s_addr);
    return Gvcp::parseAcknowledge(m_buffer, static_cast<std::size_t>(size));
}

} // namespace OrvGigEVision

// SPDX-License-Identifier: MIT
#include "responder.h"

#include <QThread>

#include <arpa/inet.h>
#include <fcntl.h>
#include <sched.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

void check(bool isFine, const char *what)
{
    if (!isFine)
        qFatal("%s: %s", what, strerror(errno));
}

int boundSocket(const QByteArray &adapter, uint16_t port)
{
    const int on = 1;
    const timeval patience{0, 20000};
    const int made = socket(AF_INET, SOCK_DGRAM, 0);
    setsockopt(made, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
    setsockopt(made, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    setsockopt(made, SOL_SOCKET, SO_BINDTODEVICE, adapter.constData(),
               static_cast<socklen_t>(adapter.size()));
    sockaddr_in any{};
    any.sin_family = AF_INET;
    any.sin_port = htons(port);
    check(bind(made, reinterpret_cast<const sockaddr *>(&any), sizeof any) == 0, "bind");
    return made;
}

QByteArray header(const char *statusAndAnswer, int size, const QByteArray &id)
{
    QByteArray packet = QByteArray::fromHex(statusAndAnswer);
    packet += static_cast<char>(size >> 8);
    packet += static_cast<char>(size & 0xFF);
    return packet + id;
}

} // namespace

Responder::Responder(const QString &farNamespace, const QString &farName, const QByteArray &mac,
                     const QByteArray &ip)
    : m_mac(QByteArray::fromHex(mac)), m_ip(QByteArray::fromHex(ip))
{
    m_thread = std::thread(&Responder::run, this, farNamespace, farName);
    while (!m_isReady)
        QThread::msleep(1);
}

Responder::~Responder()
{
    m_stop = true;
    m_thread.join();
}

std::vector<QByteArray> Responder::forced()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_forced;
}

void Responder::run(const QString &farNamespace, const QString &farName)
{
    const int there = open(farNamespace.toUtf8().constData(), O_RDONLY);
    check(there >= 0 && setns(there, CLONE_NEWNET) == 0, "setns");
    close(there);
    m_socket = boundSocket(farName.toUtf8(), 3956);
    m_otherPort = boundSocket(farName.toUtf8(), 3957);
    m_isReady = true;
    while (!m_stop) {
        char buffer[2048];
        sockaddr_in from{};
        socklen_t length = sizeof from;
        const auto size = recvfrom(m_socket, buffer, sizeof buffer, 0,
                                   reinterpret_cast<sockaddr *>(&from), &length);
        if (size >= 8) {
            ++m_commands;
            answer(QByteArray(buffer, static_cast<int>(size)), from);
        }
    }
    close(m_socket);
    close(m_otherPort);
}

void Responder::answer(const QByteArray &command, const sockaddr_in &from)
{
    const QByteArray id = command.mid(6, 2);
    const QByteArray code = command.mid(2, 2).toHex();
    if (m_mood == Mood::Silent)
        return;
    if (code == "0002")
        answerDiscovery(id, from);
    else if (code == "0004" && command.mid(8 + 2, 6) == m_mac)
        answerForceIp(command, id, from);
    else if (code == "0080" && command.mid(8) == QByteArray::fromHex("00000a00"))
        send(header("00000081", 4, id) + QByteArray(3, '\0') +
                 static_cast<char>(m_privilege.load()),
             from);
}

QByteArray Responder::identity(const QByteArray &mac) const
{
    const QByteArray gap(12, '\0');
    QByteArray payload = QByteArray::fromHex("00020000 80000001 0000") + mac;
    payload += QByteArray::fromHex("00000007 00000004");
    payload += gap + m_ip + gap + m_mask + gap + m_gateway;
    payload += QByteArray("Responder\xff").leftJustified(32, '\0');
    payload += QByteArray("Strawman").leftJustified(32, '\0');
    payload += QByteArray("0.1").leftJustified(32, '\0');
    payload += QByteArray(48, '\0');
    payload += QByteArray(16, '\0');
    payload += QByteArray("abcdefghijklmnop"); // to the last byte
    return payload;
}

void Responder::answerDiscovery(const QByteArray &id, sockaddr_in to)
{
    to.sin_addr.s_addr = INADDR_BROADCAST;
    const QByteArray good = header("00000003", 248, id) + identity(m_mac);
    if (m_mood == Mood::Late)
        QThread::msleep(300);
    if (m_mood == Mood::Flooding)
        flood(id, to);
    if (m_mood == Mood::Confused)
        confuse(good, id, to);
    send(good, to);
}

void Responder::answerForceIp(const QByteArray &command, const QByteArray &id, sockaddr_in to)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_forced.push_back(command.mid(8));
    }
    to.sin_addr.s_addr = INADDR_BROADCAST;
    if (m_mood == Mood::Stubborn) {
        send(header("80060005", 0, id), to);
        return;
    }
    send(header("00000005", 0, id), to);
    m_ip = command.mid(8 + 20, 4);
    m_mask = command.mid(8 + 36, 4);
    m_gateway = command.mid(8 + 52, 4);
    if (m_mood == Mood::Mute)
        m_mood = Mood::Silent;
}

void Responder::confuse(const QByteArray &good, const QByteArray &id, const sockaddr_in &to)
{
    const QByteArray stranger = QByteArray::fromHex("02deadbeef01");
    const QByteArray wrongId(id == "\x11\x11" ? "\x22\x22" : "\x11\x11");
    send(header("00000003", 248, wrongId) + identity(stranger), to); // somebody else's answer
    send(header("00000081", 248, id) + identity(stranger), to);      // to another question
    send(header("80030003", 248, id) + identity(stranger), to);      // an error
    send(header("00000003", 100, id) + identity(stranger).left(100), to);
    send(header("00000003", 248, id) + identity(stranger).left(247), to);
    send(header("00000003", 248, id) + identity(stranger), to, m_otherPort);
    send(good, to);
    send(good, to);
}

void Responder::flood(const QByteArray &id, const sockaddr_in &to)
{
    uint32_t noise = 1;
    for (int i = 0; i < 10000; ++i) {
        QByteArray packet = i % 3 ? QByteArray() : header("00000003", 248, id);
        const int size = static_cast<int>(noise % 500);
        while (packet.size() < size) {
            noise = noise * 1664525 + 1013904223;
            packet += static_cast<char>(noise >> 24);
        }
        send(packet, to);
    }
    m_mood = Mood::Normal;
}

void Responder::send(const QByteArray &packet, const sockaddr_in &to, int socket)
{
    sendto(socket < 0 ? m_socket : socket, packet.constData(),
           static_cast<std::size_t>(packet.size()), 0, reinterpret_cast<const sockaddr *>(&to),
           sizeof to);
}

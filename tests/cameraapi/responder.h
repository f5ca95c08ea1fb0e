// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <netinet/in.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

/// Answers GigE Vision control packets on another machine, byte by byte and with nothing of the
/// library: a camera that can be made to misbehave. It broadcasts its discovery answers, as a
/// camera does that has no way back to the asker's subnet.
class Responder
{
public:
    /// `farNamespace` and `farName` as `CameraNetwork` tells them. The addresses are the camera's
    /// claim; whether it gets packets for them is up to the machine.
    Responder(const QString &farNamespace, const QString &farName, const QByteArray &mac,
              const QByteArray &ip);
    ~Responder();

    enum class Mood { Normal, Silent, Late, Flooding, Confused, Stubborn, Mute };

    /// What to do from now on. Stubborn: refuses a forced address. Mute: accepts it and never
    /// answers again.
    void setMood(Mood mood) { m_mood = mood; }

    /// What the control privilege register holds.
    void setPrivilege(uint8_t privilege) { m_privilege = privilege; }

    /// The payloads of all forced IP commands for this camera.
    std::vector<QByteArray> forced();
    int commands() const { return m_commands; }

private:
    void run(const QString &farNamespace, const QString &farName);
    void answer(const QByteArray &command, const sockaddr_in &from);
    void answerDiscovery(const QByteArray &id, sockaddr_in to);
    void answerForceIp(const QByteArray &command, const QByteArray &id, sockaddr_in to);
    void confuse(const QByteArray &good, const QByteArray &id, const sockaddr_in &to);
    void flood(const QByteArray &id, const sockaddr_in &to);
    QByteArray identity(const QByteArray &mac) const;
    void send(const QByteArray &packet, const sockaddr_in &to, int socket = -1);

    const QByteArray m_mac;
    QByteArray m_ip;
    QByteArray m_mask = QByteArray::fromHex("ffffff00");
    QByteArray m_gateway = QByteArray(4, '\0');
    int m_socket = -1;
    int m_otherPort = -1;
    std::atomic<Mood> m_mood{Mood::Normal};
    std::atomic<uint8_t> m_privilege{0};
    std::atomic<int> m_commands{0};
    std::atomic<bool> m_stop{false};
    std::atomic<bool> m_isReady{false};
    std::mutex m_mutex;
    std::vector<QByteArray> m_forced;
    std::thread m_thread;
};

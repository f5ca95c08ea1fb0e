// SPDX-License-Identifier: MIT
#pragma once

#include <arpa/inet.h>
#include <fcntl.h>
#include <sched.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

/// A device that answers each discovery command for many cameras, also with invalid identities. It
/// answers no other command.
class CameraCrowd
{
public:
    /// The identity of one camera.
    struct Claim
    {
        uint64_t mac;
        uint32_t ip;
        std::string serial;
    };
    using Claims = std::vector<Claim>;

    /// `networkNamespace` is the path of a namespace file; see setns(2).
    CameraCrowd(std::string networkNamespace, Claims claims)
        : m_space(std::move(networkNamespace))
        , m_claims(std::move(claims))
        , m_thread([this] { run(); })
    {
        while (!m_isReady)
            std::this_thread::yield();
    }

    ~CameraCrowd()
    {
        m_isOver = true;
        m_thread.join();
    }

    void setClaims(const Claims &claims)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_claims = claims;
    }

private:
    void run()
    {
        const int there = ::open(m_space.c_str(), O_RDONLY | O_CLOEXEC);
        const int entered = setns(there, CLONE_NEWNET);
        close(there);
        const int endpoint = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
        const timeval slice{0, 20000};
        setsockopt(endpoint, SOL_SOCKET, SO_RCVTIMEO, &slice, sizeof slice);
        sockaddr_in peer{};
        socklen_t size = sizeof peer;
        peer.sin_family = AF_INET;
        peer.sin_port = htons(3956);
        if (entered != 0 || bind(endpoint, reinterpret_cast<const sockaddr *>(&peer), size) != 0)
            throw std::runtime_error("There is no place for a crowd of cameras");
        m_isReady = true;
        while (!m_isOver) {
            char command[8];
            const bool isDiscovery = recvfrom(endpoint, command, sizeof command, MSG_TRUNC,
                                              reinterpret_cast<sockaddr *>(&peer), &size) == 8;
            const std::lock_guard<std::mutex> lock(m_mutex);
            for (const Claim &claim : isDiscovery ? m_claims : Claims()) {
                const std::string bytes = answer(claim, std::string(command + 6, 2));
                sendto(endpoint, bytes.data(), bytes.size(), 0,
                       reinterpret_cast<const sockaddr *>(&peer), size);
            }
        }
        close(endpoint);
    }

    static std::string answer(const Claim &claim, const std::string &id)
    {
        std::string bytes(248, '\0');
        const auto put = [&](std::size_t at, uint64_t value, std::size_t size) {
            for (std::size_t i = 0; i < size; ++i)
                bytes[at + i] = static_cast<char>(value >> 8 * (size - 1 - i));
        };
        put(10, claim.mac, 6);
        put(36, claim.ip, 4);
        bytes.replace(216, claim.serial.size(), claim.serial);
        return std::string("\0\0\0\3\0\xF8", 6) + id + bytes;
    }

    const std::string m_space;
    std::mutex m_mutex;
    Claims m_claims;
    std::atomic<bool> m_isReady{false};
    std::atomic<bool> m_isOver{false};
    std::thread m_thread;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "gvcp.h"
#include "networkadapter.h"

#include <atomic>
#include <chrono>
#include <optional>

namespace OrvGigEVision {

using Clock = std::chrono::steady_clock;

/// Communicates with the cameras on one network adapter only: each packet is sent through this
/// adapter, and packets received by another one are dropped. That needs no privileges. Receives
/// answers to the adapter's address, and broadcasts by cameras of a foreign subnet.
///
/// Nothing throws; when the system refuses a socket or a packet, there are no answers.
class GvcpSocket
{
public:
    explicit GvcpSocket(const NetworkAdapter &adapter);
    ~GvcpSocket();
    GvcpSocket(const GvcpSocket &) = delete;
    GvcpSocket &operator=(const GvcpSocket &) = delete;

    /// Drops packets from any other address from now on.
    void listenOnlyTo(uint32_t camera) { m_onlyFrom = camera; }

    /// Updates the addresses of the same adapter. The socket stays the same for cameras.
    void setAdapter(const NetworkAdapter &adapter) { m_adapter = adapter; }

    /// Aborts a running wait for an answer and all later ones. Thread-safe.
    void interrupt();
    bool isInterrupted() const { return m_isInterrupted; }

    /// A new number for a command; never 0.
    uint16_t nextId();

    /// Sends nothing to an address that is not reachable through the adapter.
    void send(const Gvcp::Packet &packet, uint32_t camera);

    /// Sends to every camera, including those in other subnets than the adapter's.
    void broadcast(const Gvcp::Packet &packet);

    /// The next well-formed answer, valid until the next call; nothing after the time-out. Other
    /// packets are ignored and do not extend the wait.
    std::optional<Gvcp::Acknowledge> receive(Clock::time_point until);

    // For waiting for several sockets at once

    /// Readable while `hasPacket`.
    int descriptor() const { return m_socket; }
    bool hasPacket() const;

    /// The pending packet; nothing when it is to be ignored, or there is none.
    std::optional<Gvcp::Acknowledge> take();

    /// The sender of the last answer.
    uint32_t sender() const { return m_sender; }

private:
    void sendFrom(uint32_t ownIp, const Gvcp::Packet &packet, uint32_t ip);

    NetworkAdapter m_adapter;
    int m_socket = -1;
    int m_wake = -1; ///< readable after an interrupt
    std::atomic<bool> m_isInterrupted{false};
    std::optional<uint32_t> m_onlyFrom;
    uint16_t m_lastId;
    uint32_t m_sender = 0;
    uint8_t m_buffer[2048];
};

} // namespace OrvGigEVision

// SPDX-License-Identifier: MIT
#pragma once

#include "gvcp.h"
#include "networkadapter.h"

#include <atomic>
#include <chrono>
#include <optional>

namespace OrvGigEVision {

using Clock = std::chrono::steady_clock;

/// Talks to the cameras behind one network adapter, and to no others: each packet names the adapter
/// it leaves by, and what comes in by another one is dropped. That takes no privileges. Answers
/// sent to the adapter's address and those broadcast by cameras of a foreign subnet both arrive.
///
/// Nothing throws; when the system refuses a socket or a packet, there are no answers.
class GvcpSocket
{
public:
    explicit GvcpSocket(const NetworkAdapter &adapter);
    ~GvcpSocket();
    GvcpSocket(const GvcpSocket &) = delete;
    GvcpSocket &operator=(const GvcpSocket &) = delete;

    /// Drops from now on what comes from any other address.
    void listenOnlyTo(uint32_t camera) { m_onlyFrom = camera; }

    /// The same adapter may have other addresses by now. The socket stays the same to cameras.
    void setAdapter(const NetworkAdapter &adapter) { m_adapter = adapter; }

    /// Ends the wait for an answer that is under way, and lets none begin any more. May be called
    /// on any thread.
    void interrupt();
    bool isInterrupted() const { return m_isInterrupted; }

    /// A new number for a command; never 0.
    uint16_t nextId();

    /// Sends nothing to an address that the adapter does not reach.
    void send(const Gvcp::Packet &packet, uint32_t camera);

    /// To every camera, also in other subnets than the adapter's.
    void broadcast(const Gvcp::Packet &packet);

    /// The next well-formed answer, valid until the next call; nothing when the time is up. What
    /// else comes in is skipped and does not make the wait longer.
    std::optional<Gvcp::Acknowledge> receive(Clock::time_point until);

    // For those who wait for several sockets at once

    /// Readable while `hasPacket`.
    int descriptor() const { return m_socket; }
    bool hasPacket() const;

    /// The packet that has come in; nothing when it is to be skipped, or there is none.
    std::optional<Gvcp::Acknowledge> take();

    /// Where the last answer came from.
    uint32_t sender() const { return m_sender; }

private:
    void sendFrom(uint32_t ownIp, const Gvcp::Packet &packet, uint32_t ip);

    NetworkAdapter m_adapter;
    int m_socket = -1;
    int m_wake = -1; ///< readable as soon as it is interrupted
    std::atomic<bool> m_isInterrupted{false};
    std::optional<uint32_t> m_onlyFrom;
    uint16_t m_lastId;
    uint32_t m_sender = 0;
    uint8_t m_buffer[2048];
};

} // namespace OrvGigEVision

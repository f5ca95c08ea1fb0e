// SPDX-License-Identifier: MIT
#pragma once

#include "gvcpsocket.h"
#include "repetitiontimer.h"

#include <cameraio/port.h>

#include <functional>

namespace OrvGigEVision {

/// Sends commands to one camera, one at a time. An unanswered command is repeated with the same id,
/// so that the camera can recognise it; PENDING_ACK extends the time-out, up to the command's
/// budget. Answers that are malformed, late or from another sender are ignored.
///
/// Not thread-safe. Throws nothing.
class GvcpChannel
{
public:
    GvcpChannel(const NetworkAdapter &adapter, uint32_t camera);

    /// Call it when the address of the camera or of the adapter has changed.
    void setCamera(const NetworkAdapter &adapter, uint32_t camera);

    /// Aborts the running command, and every later one at once, with the status `Closed`.
    /// Thread-safe.
    void interrupt() { m_socket.interrupt(); }

    /// The result of a command.
    struct Reply
    {
        OrvCameraIo::Status status = OrvCameraIo::Status::NoAnswer;
        bool isBusy = false;     ///< refused temporarily
        bool wasPending = false; ///< the camera has requested more time
        std::vector<uint32_t> values;

        bool isDone() const { return status == OrvCameraIo::Status::Done; }
    };

    /// `addresses` as for `Gvcp::readRegistersCommand`. When the camera refuses, `values` are those
    /// of the registers before the refused one.
    Reply readRegisters(const std::vector<uint32_t> &addresses);
    Reply writeRegisters(const std::vector<Gvcp::RegisterValue> &values);
    Reply writeRegister(uint32_t address, uint32_t value)
    {
        return writeRegisters({{address, value}});
    }

    /// Address and size as for `Gvcp::readMemoryCommand`.
    Reply readMemory(uint32_t address, uint32_t size, uint8_t *bytes);
    Reply writeMemory(uint32_t address, const uint8_t *bytes, uint32_t size,
                      Clock::time_point deadline);

    /// Reads a register that is polled, without repetitions. An answer to an earlier `ask` is
    /// accepted, because the camera may be slow.
    Reply ask(uint32_t address, std::chrono::milliseconds time);

    /// Writes a register without waiting for the answer; sends the command twice, because one may
    /// get lost.
    void writeRegisterBlindly(uint32_t address, uint32_t value);

    struct Counters
    {
        uint64_t commands = 0;
        uint64_t repetitions = 0;
    };
    const Counters &counters() const { return m_counters; }

    Clock::time_point lastAnswer() const { return m_lastAnswer; }

private:
    struct Command;
    struct State;

    Command readCommand(const std::vector<uint32_t> &addresses);
    Reply transfer(const Command &command);
    bool await(const Command &command, State &state);
    bool isAnswerTo(const Command &command, const Gvcp::Acknowledge &answer) const;
    bool accept(const Gvcp::Acknowledge &answer, const Command &command, State &state);

    GvcpSocket m_socket;
    uint32_t m_camera;
    RepetitionTimer m_timer;
    Counters m_counters;
    Clock::time_point m_lastAnswer = Clock::now();

    std::vector<uint16_t> m_openQuestions; ///< the ids of unanswered `ask`s, the oldest first
    uint32_t m_questioned = 0;             ///< the register of `ask`
};

} // namespace OrvGigEVision

// SPDX-License-Identifier: MIT
#pragma once

#include "gvcpsocket.h"
#include "repetitiontimer.h"

#include <cameraio/port.h>

#include <functional>

namespace OrvGigEVision {

/// Has one camera carry out commands, one at a time. An unanswered command is repeated, with the
/// same id, so that the camera can tell it from a new one; PENDING_ACK makes the wait longer, up to
/// the command's budget. Answers that are malformed, late or from elsewhere are skipped.
///
/// To be used by one thread at a time. Nothing throws.
class GvcpChannel
{
public:
    GvcpChannel(const NetworkAdapter &adapter, uint32_t camera);

    /// The camera has another address, or the adapter has.
    void setCamera(const NetworkAdapter &adapter, uint32_t camera);

    /// Ends the command that is under way, and every later one at once, with the status `Closed`.
    /// May be called on any thread.
    void interrupt() { m_socket.interrupt(); }

    /// What became of a command.
    struct Reply
    {
        OrvCameraIo::Status status = OrvCameraIo::Status::NoAnswer;
        bool isBusy = false;     ///< refused for now only
        bool wasPending = false; ///< the camera has asked for more time
        std::vector<uint32_t> values;

        bool isDone() const { return status == OrvCameraIo::Status::Done; }
    };

    /// `addresses` as `Gvcp::readRegistersCommand` takes them. When the camera refuses, `values`
    /// are those of the registers before the one that it refuses.
    Reply readRegisters(const std::vector<uint32_t> &addresses);
    Reply writeRegisters(const std::vector<Gvcp::RegisterValue> &values);
    Reply writeRegister(uint32_t address, uint32_t value)
    {
        return writeRegisters({{address, value}});
    }

    /// Address and size as `Gvcp::readMemoryCommand` takes them.
    Reply readMemory(uint32_t address, uint32_t size, uint8_t *bytes);
    Reply writeMemory(uint32_t address, const uint8_t *bytes, uint32_t size,
                      Clock::time_point deadline);

    /// Asks for a register that is asked for again and again, without any repetition. A slow camera
    /// may answer the question before this one.
    Reply ask(uint32_t address, std::chrono::milliseconds time);

    /// Writes a register without waiting for the answer; sends the command twice in case one is
    /// lost.
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
    uint32_t m_questioned = 0;             ///< the register that they ask for
};

} // namespace OrvGigEVision

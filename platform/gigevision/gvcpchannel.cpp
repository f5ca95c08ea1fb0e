// SPDX-License-Identifier: MIT
#include "gvcpchannel.h"

#include <cameraio/limits.h>

#include <algorithm>
#include <cstring>

namespace OrvGigEVision {

using OrvCameraIo::Status;
namespace Limits = OrvCameraIo::Limits;

namespace {

/// The number of malformed answers after which a command fails.
constexpr int malformedAnswerLimit = 3;

/// The most unanswered probes whose ids are stored; newer ones replace older ones.
constexpr std::size_t mostOpenQuestions = 16;

Status statusOf(uint16_t code)
{
    switch (code) {
    case Gvcp::StatusSuccess:
        return Status::Done;
    case Gvcp::StatusWriteProtect:
    case Gvcp::StatusAccessDenied:
    case Gvcp::StatusBusy:
        return Status::AccessDenied;
    case Gvcp::StatusInvalidAddress:
    case Gvcp::StatusBadAlignment:
        return Status::InvalidAddress;
    case Gvcp::StatusInvalidParameter:
        return Status::InvalidParameter;
    default:
        return Status::Failed;
    }
}

} // namespace

struct GvcpChannel::Command
{
    uint16_t id;
    Gvcp::Packet packet;
    Gvcp::Answer answer;
    Clock::time_point deadline;

    /// Processes the content of an answer; returns false when it cannot belong to this command. A
    /// command without this function succeeds by its status alone.
    std::function<bool(const Gvcp::Acknowledge &answer, Reply &reply)> take = nullptr;

    bool isRepeated = true;
    bool isQuestion = false; ///< a probe: an answer to an earlier probe is sufficient
    /// False for a write, whose duration in the camera says nothing about the network.
    bool isMeasured = true;
};

/// The progress of a command.
struct GvcpChannel::State
{
    const Clock::time_point start = Clock::now();
    int repetitions = 0;
    int malformedAnswers = 0;
    Reply reply;
};

GvcpChannel::GvcpChannel(const NetworkAdapter &adapter, uint32_t camera)
    : m_socket(adapter), m_camera(camera)
{
    m_socket.listenOnlyTo(camera);
}

void GvcpChannel::setCamera(const NetworkAdapter &adapter, uint32_t camera)
{
    m_camera = camera;
    m_socket.setAdapter(adapter);
    m_socket.listenOnlyTo(camera);
    m_timer = RepetitionTimer();
    m_openQuestions.clear();
}

GvcpChannel::Command GvcpChannel::readCommand(const std::vector<uint32_t> &addresses)
{
    const uint16_t id = m_socket.nextId();
    Command command{id, Gvcp::readRegistersCommand(id, addresses), Gvcp::Answer::ReadRegister,
                    Clock::now() + Limits::readBudget};
    command.take = [count = addresses.size()](const Gvcp::Acknowledge &answer, Reply &reply) {
        auto values = Gvcp::parseRegisters(answer, count);
        if (!values)
            return answer.status != Gvcp::StatusSuccess;
        reply.values = std::move(*values);
        return true;
    };
    return command;
}

GvcpChannel::Reply GvcpChannel::readRegisters(const std::vector<uint32_t> &addresses)
{
    return transfer(readCommand(addresses));
}

GvcpChannel::Reply GvcpChannel::ask(uint32_t address, std::chrono::milliseconds time)
{
    Command command = readCommand({address});
    command.deadline = Clock::now() + time;
    command.isRepeated = false;
    command.isQuestion = true;
    if (address != m_questioned || m_openQuestions.size() == mostOpenQuestions)
        m_openQuestions.clear();
    m_questioned = address;
    m_openQuestions.push_back(command.id);
    return transfer(command);
}

bool GvcpChannel::isAnswerTo(const Command &command, const Gvcp::Acknowledge &answer) const
{
    if (answer.is(command.answer, command.id))
        return true;
    return command.isQuestion &&
           std::any_of(m_openQuestions.begin(), m_openQuestions.end(),
                       [&](uint16_t id) { return answer.is(command.answer, id); });
}

GvcpChannel::Reply GvcpChannel::writeRegisters(const std::vector<Gvcp::RegisterValue> &values)
{
    const uint16_t id = m_socket.nextId();
    Command command{id, Gvcp::writeRegistersCommand(id, values), Gvcp::Answer::WriteRegister,
                    Clock::now() + Limits::writeBudget};
    command.isMeasured = false;
    return transfer(command);
}

GvcpChannel::Reply GvcpChannel::readMemory(uint32_t address, uint32_t size, uint8_t *bytes)
{
    const uint16_t id = m_socket.nextId();
    Command command{id, Gvcp::readMemoryCommand(id, address, size), Gvcp::Answer::ReadMemory,
                    Clock::now() + Limits::readBudget};
    command.take = [&](const Gvcp::Acknowledge &answer, Reply &) {
        if (answer.status != Gvcp::StatusSuccess)
            return true;
        const uint8_t *data = Gvcp::parseMemory(answer, address, size);
        if (data)
            std::memcpy(bytes, data, size);
        return data != nullptr;
    };
    return transfer(command);
}

GvcpChannel::Reply GvcpChannel::writeMemory(uint32_t address, const uint8_t *bytes, uint32_t size,
                                            Clock::time_point deadline)
{
    const uint16_t id = m_socket.nextId();
    Command command{id, Gvcp::writeMemoryCommand(id, address, bytes, size),
                    Gvcp::Answer::WriteMemory, deadline};
    command.isMeasured = false;
    return transfer(command);
}

void GvcpChannel::writeRegisterBlindly(uint32_t address, uint32_t value)
{
    ++m_counters.commands;
    ++m_counters.repetitions;
    const auto packet = Gvcp::writeRegistersCommand(m_socket.nextId(), {{address, value}});
    m_socket.send(packet, m_camera);
    m_socket.send(packet, m_camera);
}

GvcpChannel::Reply GvcpChannel::transfer(const Command &command)
{
    State state;
    state.reply.status = Status::Closed;
    if (m_socket.isInterrupted())
        return state.reply;
    ++m_counters.commands;
    while (true) {
        m_socket.send(command.packet, m_camera);
        if (await(command, state))
            return state.reply;
        if (m_socket.isInterrupted()) {
            state.reply.status = Status::Closed;
            return state.reply;
        }
        if (!command.isRepeated || Clock::now() >= command.deadline)
            break;
        ++state.repetitions;
        ++m_counters.repetitions;
    }
    state.reply.status = state.malformedAnswers > 0 ? Status::Failed : Status::NoAnswer;
    return state.reply;
}

/// Returns true with the answer, false when it is time for a repetition.
bool GvcpChannel::await(const Command &command, State &state)
{
    auto until = command.deadline;
    if (command.isRepeated)
        until = std::min(until, Clock::now() + m_timer.interval(state.repetitions));
    while (const auto answer = m_socket.receive(until)) {
        if (isAnswerTo(command, *answer)) {
            m_lastAnswer = Clock::now();
            if (accept(*answer, command, state))
                return true;
        } else if (answer->is(Gvcp::Answer::Pending, command.id)) {
            m_lastAnswer = Clock::now();
            state.reply.wasPending = true;
            if (const auto time = Gvcp::parsePending(*answer))
                until = std::min(command.deadline, std::max(until, m_lastAnswer + *time));
        }
    }
    return false;
}

bool GvcpChannel::accept(const Gvcp::Acknowledge &answer, const Command &command, State &state)
{
    if (command.take && !command.take(answer, state.reply)) {
        state.reply.status = Status::Failed;
        return ++state.malformedAnswers >= malformedAnswerLimit;
    }
    if (command.isQuestion) {
        const auto open = std::find(m_openQuestions.begin(), m_openQuestions.end(), answer.id);
        m_openQuestions.erase(m_openQuestions.begin(), open + 1);
    }
    if (command.isMeasured && answer.id == command.id && !state.reply.wasPending) {
        const auto elapsed = m_lastAnswer - state.start;
        m_timer.answered(std::chrono::duration_cast<RepetitionTimer::Duration>(elapsed),
                         state.repetitions);
    }
    state.reply.status = statusOf(answer.status);
    state.reply.isBusy = answer.status == Gvcp::StatusBusy;
    return true;
}

} // namespace OrvGigEVision

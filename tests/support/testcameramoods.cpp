// SPDX-License-Identifier: MIT
#include "testcameramoods.h"

#include <stdexcept>

namespace {

using Behaviour = TestCameraBehaviour;

template<Behaviour::Fault fault>
void addFault(Behaviour &behaviour, int value)
{
    behaviour.faults |= fault;
    behaviour.isGoodAfter = value != 0;
}

template<class T, T Behaviour::*member>
void set(Behaviour &behaviour, int value)
{
    behaviour.*member = static_cast<T>(value);
}

template<Behaviour::ForceIp reaction>
void setForceIp(Behaviour &behaviour, int)
{
    behaviour.forceIp = reaction;
}

void setPendingForever(Behaviour &behaviour, int value)
{
    behaviour.pending = 1;
    behaviour.pendingTime = value;
    behaviour.isPendingForever = true;
}

const char *const orGood = "0: in place of the good answer, 1: ahead of it";

} // namespace

const std::vector<TestCameraMood> &testCameraMoods()
{
    static const std::vector<TestCameraMood> moods = {
        {"good", "none", 0, [](Behaviour &, int) {}},
        {"delay", "ms", 5, set<int, &Behaviour::delay>},
        {"write-delay", "ms", 500, set<int, &Behaviour::writeDelay>},
        {"request-loss", "per cent", 5, set<int, &Behaviour::requestLoss>},
        {"answer-loss", "per cent", 5, set<int, &Behaviour::answerLoss>},
        {"duplicates", "further copies", 1, set<int, &Behaviour::duplicates>},
        {"reorder", "ms for every other answer", 20, set<int, &Behaviour::reorder>},
        {"silence", "ms, -1 for good", -1, set<int, &Behaviour::silence>},
        {"pending", "PENDING_ACKs", 2, set<int, &Behaviour::pending>},
        {"pending-time", "ms that each announces", 200, set<int, &Behaviour::pendingTime>},
        {"pending-forever", "ms announced, with no answer", 65535, setPendingForever},
        {"wrong-id", orGood, 0, addFault<Behaviour::WrongId>},
        {"wrong-command", orGood, 0, addFault<Behaviour::WrongCommand>},
        {"error-status", orGood, 0, addFault<Behaviour::ErrorStatus>},
        {"short", orGood, 0, addFault<Behaviour::ShortAnswer>},
        {"long", orGood, 0, addFault<Behaviour::LongAnswer>},
        {"wrong-length", orGood, 0, addFault<Behaviour::WrongLength>},
        {"truncated", orGood, 0, addFault<Behaviour::TruncatedAnswer>},
        {"truncated-header", orGood, 0, addFault<Behaviour::TruncatedHeader>},
        {"foreign-port", orGood, 0, addFault<Behaviour::ForeignPort>},
        {"garbage", "packets ahead of each answer", 20, set<int, &Behaviour::garbage>},
        {"refuse", "status", 0x8006, set<uint16_t, &Behaviour::refuseAll>},
        {"refuse-batches", "status", 0x8002, set<uint16_t, &Behaviour::refuseBatches>},
        {"busy", "commands", 3, set<int, &Behaviour::busy>},
        {"small-reads", "bytes", 4, set<uint32_t, &Behaviour::largestRead>},
        {"force-ip-ignored", "none", 0, setForceIp<Behaviour::ForceIp::Ignored>},
        {"force-ip-refused", "none", 0, setForceIp<Behaviour::ForceIp::Refused>},
        {"force-ip-fatal", "none", 0, setForceIp<Behaviour::ForceIp::Fatal>},
    };
    return moods;
}

const TestCameraMood &testCameraMood(const std::string &name)
{
    for (const TestCameraMood &mood : testCameraMoods()) {
        if (name == mood.name)
            return mood;
    }
    throw std::invalid_argument("There is no mood " + name);
}

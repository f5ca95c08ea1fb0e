// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The faults of a TestCamera; none when default-constructed. All faults can be
/// combined. Times are in milliseconds, losses in per cent.
struct TestCameraBehaviour
{
    int delay = 0;       ///< before every answer; several commands are answered independently
    int writeDelay = 0;  ///< in addition, for an answer to a write
    int requestLoss = 0; ///< requests that never arrive
    int answerLoss = 0;  ///< answers that never arrive although the command is executed
    uint32_t seed = 1;   ///< selects the lost packets; the same seed loses the same ones
    int duplicates = 0;  ///< further copies of each answer
    int reorder = 0;     ///< additional delay of every other answer

    int silence = 0; ///< no reaction from now on for this long; -1: for ever

    int pending = 0;               ///< PENDING_ACKs before the answer to a read or write
    int pendingTime = 200;         ///< announced by each; the next packet follows after 3/4
    bool isPendingForever = false; ///< no answer follows the last PENDING_ACK

    /// Faulty answers, derived from the good one. All except TruncatedAnswer contain inverted data,
    /// so that a test detects a client that accepts them.
    enum Fault : unsigned {
        WrongId = 1,
        WrongCommand = 2,
        ErrorStatus = 4,       ///< status 0x8FFF
        ShortAnswer = 8,       ///< 4 bytes less data, with the matching length field
        LongAnswer = 16,       ///< 4 bytes more data, with the matching length field
        WrongLength = 32,      ///< the length field is 4 bytes too large
        TruncatedAnswer = 64,  ///< the last byte is missing
        TruncatedHeader = 128, ///< 5 bytes
        ForeignPort = 256,     ///< from another port of the camera
        AllFaults = 511
    };
    unsigned faults = 0;      ///< one packet for each, in this order
    bool isGoodAfter = false; ///< the good answer follows the faulty ones
    int garbage = 0;          ///< packets of random bytes before each answer

    /// Refusals of reads and writes. Discovery and forced IP still work.
    uint16_t refuseAll = 0;     ///< the status of all reads and writes; 0 refuses none
    uint16_t refuseBatches = 0; ///< the status of READREG and WRITEREG with several addresses
    int busy = 0;               ///< number of further reads and writes that get BUSY
    uint32_t largestRead = 536; ///< READMEM of registers beyond this size (bytes) is refused

    struct Refusal
    {
        uint32_t first;
        uint32_t last;
        uint16_t status;
        bool reads = true;
        bool writes = true;
    };
    std::vector<Refusal> refusals;

    /// Reactions to a forced IP for this camera: obey, acknowledge and ignore, refuse, or
    /// acknowledge and remain silent.
    enum class ForceIp { Obeyed, Ignored, Refused, Fatal };
    ForceIp forceIp = ForceIp::Obeyed;
};

/// A fault with a name and one number, for tables of tests and for command lines.
struct TestCameraMood
{
    const char *name;
    const char *meaning; ///< of the number
    int usual;           ///< a typical number
    void (*apply)(TestCameraBehaviour &behaviour, int value);
};

const std::vector<TestCameraMood> &testCameraMoods();

/// Throws std::invalid_argument if there is no such mood.
const TestCameraMood &testCameraMood(const std::string &name);

// SPDX-License-Identifier: MIT
#pragma once

#include "registers.h"

#include <GenApi/Types.h>

#include <chrono>
#include <cstdint>
#include <vector>

namespace OrvGenApi {

class NodeMapBase;

/// Thrown while a question is answered: something must be fetched first. What it is has been noted
/// in the question. Deliberately no exception of GenICam, so that no code that survives the failure
/// of a node takes it for one; nothing may keep it as a result.
struct NotYetKnown
{
};

/// A question to a node map while it is being answered, on the thread that asked.
///
/// Answering is computing only: nodes look at what is known. What is missing is noted here and
/// `NotYetKnown` is thrown; after it was fetched, without the lock, the question is answered from
/// the start. What a write means for the camera is noted here, too, and carried out afterwards.
class Question
{
public:
    enum class Kind {
        Waiting, ///< what is missing will be fetched
        Looking  ///< the caller accepts "not yet", and values a second old
    };

    explicit Question(Kind kind) : m_kind(kind) { beginRound(); }
    Question(const Question &) = delete;
    Question &operator=(const Question &) = delete;

    Kind kind() const { return m_kind; }

    /// The one that this thread is answering for that map, or null.
    static Question *current(const NodeMapBase &map);

    /// Between two rounds nothing becomes known to the question. To be called
    /// when what was missing has been fetched.
    void beginRound();

    /// A number for the round of the innermost question that this thread is answering; 0 when there
    /// is none. No two rounds have the same.
    static uint64_t currentRound();

    std::vector<RegisterRange> missing;
    std::vector<RegisterWrite> writes;

    /// The moment at which it was asked, in the terms of the map's register cache; 0 while no
    /// register that must not be older than the question has been read.
    uint64_t askedAt = 0;

    /// Makes a question the current one of this thread as long as it lives.
    class Scope
    {
    public:
        Scope(const NodeMapBase &map, Question &question);
        ~Scope();
        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;

    private:
        friend class Question;

        const NodeMapBase &m_map;
        Question &m_question;
        Scope *const m_outer;
    };

private:
    const Kind m_kind;
    uint64_t m_round = 0;
};

/// Lets several things be looked at before `NotYetKnown` is passed on, so that one round fetches
/// what all of them need.
class Gather
{
public:
    template<typename Look>
    void operator()(Look look)
    {
        try {
            look();
        } catch (const NotYetKnown &) {
            m_isIncomplete = true;
        }
    }

    /// Throws `NotYetKnown` when something was missing.
    void finish() const
    {
        if (m_isIncomplete)
            throw NotYetKnown();
    }

private:
    bool m_isIncomplete = false;
};

} // namespace OrvGenApi

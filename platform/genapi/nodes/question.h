// SPDX-License-Identifier: MIT
#pragma once

#include "registers.h"

#include <GenApi/Types.h>

#include <chrono>
#include <cstdint>
#include <vector>

namespace OrvGenApi {

class NodeMapBase;

/// Thrown during a query when data must be fetched first, which have been noted in the query.
/// Deliberately not a GenICam exception, so that no code handles it as the failure of a node; it
/// must never be cached as a result.
struct NotYetKnown
{
};

/// A query of a node map, on the thread that makes it.
///
/// The evaluation uses cached data only. Missing data are noted and `NotYetKnown` is thrown; after
/// they were fetched, without the lock, the evaluation starts again. Writes are noted, too, and
/// executed after the evaluation.
class Question
{
public:
    enum class Kind {
        Waiting, ///< missing data will be fetched
        Looking  ///< missing data are allowed, and volatile values may be a second old
    };

    explicit Question(Kind kind) : m_kind(kind) { beginRound(); }
    Question(const Question &) = delete;
    Question &operator=(const Question &) = delete;

    Kind kind() const { return m_kind; }

    /// The query of that map that this thread is evaluating, or null.
    static Question *current(const NodeMapBase &map);

    /// Starts a round; during a round no further data become available. Call it when the missing
    /// data have been fetched.
    void beginRound();

    /// The number of the round of this thread's innermost query; 0 without one. No two rounds have
    /// the same number.
    static uint64_t currentRound();

    std::vector<RegisterRange> missing;
    std::vector<RegisterWrite> writes;

    /// The logical time of the query in the register cache; 0 until a register is read that must
    /// not be older than the query.
    uint64_t askedAt = 0;

    /// Makes a query the current one of this thread while an instance exists.
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

/// Delays `NotYetKnown` so that one round fetches the data for several lookups.
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

    /// Throws `NotYetKnown` when data are missing.
    void finish() const
    {
        if (m_isIncomplete)
            throw NotYetKnown();
    }

private:
    bool m_isIncomplete = false;
};

} // namespace OrvGenApi

// SPDX-License-Identifier: MIT
#pragma once

#include "question.h"

#include <Base/GCException.h>

#include <exception>
#include <optional>
#include <utility>

namespace OrvGenApi {

/// A result that is computed by the first query and cached until it is dropped. A failure is
/// cached, too, so that another query costs no transfer. A time-out is not: it is temporary, and
/// causes no second wait, because the registers of a silent camera fail at once.
///
/// A missing result is computed only once per round of a query: many nodes may depend on it, and
/// each would find the same registers missing.
template<typename T>
class Cached
{
public:
    template<typename Compute>
    T get(bool keep, Compute compute)
    {
        const uint64_t round = Question::currentRound();
        if (round != 0 && m_missedIn == round)
            throw NotYetKnown();
        if (!keep)
            drop();
        if (m_failure)
            std::rethrow_exception(m_failure);
        if (!m_value) {
            try {
                T value = compute();
                if (!keep)
                    return value;
                m_value = std::move(value);
            } catch (const NotYetKnown &) {
                m_missedIn = round;
                throw;
            } catch (const GenICam::TimeoutException &) {
                throw;
            } catch (...) {
                if (keep)
                    m_failure = std::current_exception();
                throw;
            }
        }
        return *m_value;
    }

    void set(T value)
    {
        m_value = std::move(value);
        m_failure = nullptr;
        m_missedIn = 0;
    }

    void drop()
    {
        m_value.reset();
        m_failure = nullptr;
        m_missedIn = 0;
    }

    bool isValid() const { return m_value.has_value(); }

private:
    std::optional<T> m_value;
    std::exception_ptr m_failure;
    uint64_t m_missedIn = 0; ///< the round; 0 for none
};

} // namespace OrvGenApi

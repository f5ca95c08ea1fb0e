// SPDX-License-Identifier: MIT
#pragma once

#include "question.h"

#include <Base/GCException.h>

#include <exception>
#include <optional>
#include <utility>

namespace OrvGenApi {

/// A result that is computed when it is first queried and kept until it is dropped. A failure is
/// kept like a value: asking again must not cost the camera another transaction. A time-out is not:
/// it passes by itself when the camera answers again, and no caller waits for it twice, since the
/// registers of a silent camera fail at once.
///
/// What is not yet known is not computed twice in a round of a question: many nodes may need it,
/// and each would find all that is missing again.
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

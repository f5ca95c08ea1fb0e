// SPDX-License-Identifier: MIT
#include "maincontext.h"

#include <glib.h>

#include <atomic>
#include <mutex>

namespace OrvCameraIo::MainContext {

namespace {

/// A value that one thread passes to another. GLib's locks already order the two accesses, but the
/// thread sanitizer does not know them.
template<typename Value>
class HandedOver
{
public:
    explicit HandedOver(Value value) : m_value(std::move(value))
    {
        m_isReady.store(true, std::memory_order_release);
    }

    /// Called on the receiving thread.
    const Value &get() const
    {
        while (!m_isReady.load(std::memory_order_acquire)) {
        }
        return m_value;
    }

private:
    const Value m_value;
    std::atomic<bool> m_isReady{false};
};

using Call = HandedOver<std::function<void()>>;

int callOnce(void *data)
{
    static_cast<Call *>(data)->get()();
    return G_SOURCE_REMOVE;
}

void destroyCall(void *data)
{
    delete static_cast<Call *>(data);
}

} // namespace

void post(std::function<void()> call)
{
    GSource *source = g_idle_source_new();
    g_source_set_priority(source, G_PRIORITY_HIGH);
    g_source_set_callback(source, callOnce, new Call(std::move(call)), destroyCall);
    g_source_attach(source, nullptr);
    g_source_unref(source);
}

void run(unsigned durationMs)
{
    if (!g_main_context_acquire(nullptr))
        return;
    bool isOver = false;
    GSource *end = g_timeout_source_new(durationMs);
    g_source_set_callback(
        end,
        [](void *over) -> gboolean {
            *static_cast<bool *>(over) = true;
            return G_SOURCE_REMOVE;
        },
        &isOver, nullptr);
    g_source_attach(end, nullptr);
    while (!isOver)
        g_main_context_iteration(nullptr, TRUE);
    g_source_unref(end);
    g_main_context_release(nullptr);
}

struct Timer::State
{
    std::recursive_mutex mutex; ///< recursive, because a tick may destroy the timer
    std::function<void()> tick; ///< empty after the destruction
};

Timer::Timer(unsigned periodMs, std::function<void()> tick) : m_state(std::make_shared<State>())
{
    m_state->tick = std::move(tick);
    using Held = HandedOver<std::shared_ptr<State>>;
    // The source removes itself at its next call after the destruction: destroying it here would
    // race with the context that is about to call it.
    g_timeout_add_full(
        G_PRIORITY_DEFAULT, periodMs,
        [](void *data) -> gboolean {
            const std::shared_ptr<State> state = static_cast<Held *>(data)->get();
            const std::lock_guard<std::recursive_mutex> lock(state->mutex);
            if (const auto call = state->tick)
                call();
            return state->tick ? G_SOURCE_CONTINUE : G_SOURCE_REMOVE;
        },
        new Held(m_state), [](void *data) { delete static_cast<Held *>(data); });
}

Timer::~Timer()
{
    const std::lock_guard<std::recursive_mutex> lock(m_state->mutex);
    m_state->tick = nullptr;
}

} // namespace OrvCameraIo::MainContext

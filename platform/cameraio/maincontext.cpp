// SPDX-License-Identifier: MIT
#include "maincontext.h"

#include <glib.h>

#include <atomic>
#include <mutex>

namespace OrvCameraIo::MainContext {

namespace {

/// What one thread hands over to another. GLib's locks put the two in order; the thread sanitizer
/// does not see those, but this.
struct Call
{
    explicit Call(std::function<void()> toDo) : function(std::move(toDo))
    {
        isReady.store(true, std::memory_order_release);
    }
    std::function<void()> function;
    std::atomic<bool> isReady{false};
};

int callOnce(void *data)
{
    auto *call = static_cast<Call *>(data);
    if (call->isReady.load(std::memory_order_acquire))
        call->function();
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

struct Timer::State
{
    std::recursive_mutex mutex; ///< recursive: a tick may end the timer
    std::function<void()> tick; ///< empty after the end
};

Timer::Timer(unsigned periodMs, std::function<void()> tick) : m_state(std::make_shared<State>())
{
    m_state->tick = std::move(tick);
    using Held = std::shared_ptr<State>;
    // The source removes itself at its next turn after the end: destroying it from here would race
    // with the context that is about to call it.
    g_timeout_add_full(
        G_PRIORITY_DEFAULT, periodMs,
        [](void *data) -> gboolean {
            const Held state = *static_cast<Held *>(data);
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

// SPDX-License-Identifier: MIT
#include "maincontext.h"

#include <glib.h>

#include <mutex>

namespace OrvCameraIo::MainContext {

namespace {

int callOnce(void *data)
{
    (*static_cast<std::function<void()> *>(data))();
    return G_SOURCE_REMOVE;
}

void destroyCall(void *data)
{
    delete static_cast<std::function<void()> *>(data);
}

} // namespace

void post(std::function<void()> call)
{
    GSource *source = g_idle_source_new();
    g_source_set_priority(source, G_PRIORITY_HIGH);
    g_source_set_callback(source, callOnce, new std::function<void()>(std::move(call)),
                          destroyCall);
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

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

namespace OrvCameraIo::MainContext {

// The default GLib main context, on which all notifications arrive. Qt's event loop on Linux runs
// it, so what is posted arrives on the thread that draws. All functions may be called on any
// thread.

/// Has `call` called once, soon.
void post(std::function<void()> call);

/// Runs the context for so many milliseconds, 0 for what is ready. Does nothing when another thread
/// is running it.
void run(unsigned durationMs);

/// Calls `tick` every `periodMs` as long as the object lives. When the destructor returns, no call
/// is under way on another thread and none will come; it may be called from inside `tick`.
class Timer
{
public:
    Timer(unsigned periodMs, std::function<void()> tick);
    ~Timer();
    Timer(const Timer &) = delete;
    Timer &operator=(const Timer &) = delete;

private:
    struct State;

    const std::shared_ptr<State> m_state;
};

} // namespace OrvCameraIo::MainContext

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

namespace OrvCameraIo::MainContext {

// The default GLib main context, through which all notifications pass. Qt's event loop on Linux
// runs it, so posted calls arrive on the GUI thread. All functions are thread-safe.

/// Schedules one call of `call`.
void post(std::function<void()> call);

/// Runs the context for that number of milliseconds; 0 for pending events only. Does nothing when
/// another thread is running it.
void run(unsigned durationMs);

/// Calls `tick` every `periodMs` while the object exists. When the destructor returns, no call is
/// running on another thread and none will follow; it may be called from inside `tick`.
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

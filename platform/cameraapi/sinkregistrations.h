// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/ParamEventSink.h>

#include <memory>

namespace OrvGenParam {

/// The sinks of one parameter. All functions are thread-safe and may be called from inside a
/// notification; sinks and registrations may be destroyed at any time. When `remove` or the
/// destructor returns, no call is running on another thread and none will follow.
///
/// A notification on one thread waits for one of the same sink on another; do not hold a lock that
/// a sink needs while removing it.
class SinkRegistrations
{
public:
    /// `param` is passed to the sinks; it need not outlive the registrations.
    explicit SinkRegistrations(Param *param);
    ~SinkRegistrations();
    SinkRegistrations(const SinkRegistrations &) = delete;
    SinkRegistrations &operator=(const SinkRegistrations &) = delete;

    /// Adding a sink again has no effect; null is ignored.
    void add(ParamEventSink *sink);

    /// A sink that is not registered is ignored.
    void remove(ParamEventSink *sink);

    bool isEmpty() const;

    /// Calls, on this thread, every sink that is still registered at its turn.
    void notify();

    /// Requests the same from the default GLib main context. Pending requests are merged; a request
    /// that is processed after the parameter's destruction has no effect.
    void notifyLater();

private:
    struct Sinks;

    std::shared_ptr<Sinks> m_sinks;
};

} // namespace OrvGenParam

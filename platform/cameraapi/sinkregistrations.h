// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/ParamEventSink.h>

#include <memory>

namespace OrvGenParam {

/// The sinks of one parameter. Adding, removing, notifying and destroying either end are safe at
/// any time and on any thread, also from inside a notification. When `remove` or the destructor
/// returns, no call is running on another thread and none will come.
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

    /// A sink that is there already stays there once; null is ignored.
    void add(ParamEventSink *sink);

    /// A sink that is not there is ignored.
    void remove(ParamEventSink *sink);

    bool isEmpty() const;

    /// Calls every sink that is registered when its turn comes, on this thread.
    void notify();

    /// Has the default GLib main context do so. Requests that it has not come to yet become one;
    /// one that it comes to after the parameter's end does nothing.
    void notifyLater();

private:
    struct Sinks;

    std::shared_ptr<Sinks> m_sinks;
};

} // namespace OrvGenParam

// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <memory>

/// Connections that are disconnected together, by the destructor or by `end`.
///
/// For handlers of an object that is not a `QObject`, or that are needed for a part of its
/// lifetime. Declare a member of this class after everything that the handlers use. Use it on the
/// thread that created it.
class Connections
{
public:
    template<class Sender, class Signal, class Handler>
    void add(Sender *sender, Signal signal, Handler handler)
    {
        QObject::connect(sender, signal, m_receiver.get(), handler);
    }

    /// Disconnects all connections. Others can be added afterwards.
    void end() { m_receiver = std::make_unique<QObject>(); }

    /// The receiver of the connections; its children are destroyed with them.
    QObject *receiver() const { return m_receiver.get(); }

private:
    std::unique_ptr<QObject> m_receiver = std::make_unique<QObject>();
};

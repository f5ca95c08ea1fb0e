// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstdint>

/// One command that a client sent to a GigE Vision camera.
struct GvcpCommand
{
    enum Kind {
        ReadRegister = 0x0080,
        WriteRegister = 0x0082,
        ReadMemory = 0x0084,
        WriteMemory = 0x0086
    };

    int kind;
    quint32 address;
    quint32 size; ///< bytes

    bool isRead() const { return kind == ReadRegister || kind == ReadMemory; }
};

/// Records the commands that clients send to GigE Vision cameras over a network adapter, by default
/// the loopback device. Requires root rights in its network namespace.
class GvcpCounter
{
public:
    explicit GvcpCounter(const char *adapter = "lo");
    ~GvcpCounter();
    GvcpCounter(const GvcpCounter &) = delete;
    GvcpCounter &operator=(const GvcpCounter &) = delete;

    bool isListening() const { return m_socket >= 0; }

    /// The register and memory commands since the last call, except heartbeats.
    QList<GvcpCommand> take();

private:
    int m_socket;
};

/// The number of read commands, or of write commands.
int readsIn(const QList<GvcpCommand> &commands);
int writesIn(const QList<GvcpCommand> &commands);

/// The registers that are read more than once, as text. An access of another size counts as another
/// register, even where the two overlap.
QString registersReadTwice(const QList<GvcpCommand> &commands);

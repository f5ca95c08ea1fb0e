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

/// Listens on a network adapter, by default the loopback device, to what clients send to GigE
/// Vision cameras. Needs to be root of its network namespace.
class GvcpCounter
{
public:
    explicit GvcpCounter(const char *adapter = "lo");
    ~GvcpCounter();
    GvcpCounter(const GvcpCounter &) = delete;
    GvcpCounter &operator=(const GvcpCounter &) = delete;

    bool isListening() const { return m_socket >= 0; }

    /// The register and memory commands since the last call, those left out that keep the control
    /// channel alive.
    QList<GvcpCommand> take();

private:
    int m_socket;
};

/// How many of the commands read, or write.
int readsIn(const QList<GvcpCommand> &commands);
int writesIn(const QList<GvcpCommand> &commands);

/// The registers that are read more than once, as text. Another size makes another register, also
/// where it overlaps.
QString registersReadTwice(const QList<GvcpCommand> &commands);

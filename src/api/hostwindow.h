// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRect>

#include <cstdint>

struct xcb_connection_t;

namespace OrvGui {

/// Reports the position and size of a foreign X window, which Qt does not.
///
/// Uses a connection of its own to the default display, without an effect on the owner of the
/// window (another toolkit or another process). Emits nothing for a window that does not exist, and
/// on a platform other than "xcb".
class HostWindow : public QObject
{
    Q_OBJECT

public:
    explicit HostWindow(unsigned long window, QObject *parent = nullptr);
    ~HostWindow() override;

    /// In device pixels; invalid when unknown.
    QSize size() const;

    /// On the screen, in device pixels; invalid when unknown.
    QRect area() const;

signals:
    /// In device pixels. Emitted from Qt's event loop.
    void resized(const QSize &size);

private:
    void listen();
    void readEvents();

    std::uint32_t m_window;
    xcb_connection_t *m_connection = nullptr;
};

} // namespace OrvGui

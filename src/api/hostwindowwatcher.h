// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSize>

struct xcb_connection_t;

namespace OrvGui {

/// Reports the size of an X window that belongs to somebody else, to keep a widget inside it as
/// large as it.
///
/// Qt hears nothing of such a window, so this listens on a connection of its own. Its owner,
/// another toolkit or another process, notices nothing of that. Silent when the window does not
/// exist, or not on the default display.
class HostWindowWatcher : public QObject
{
    Q_OBJECT

public:
    explicit HostWindowWatcher(unsigned long window, QObject *parent = nullptr);
    ~HostWindowWatcher() override;

signals:
    /// In device pixels.
    void resized(const QSize &size);

private:
    void readEvents();

    unsigned long m_window;
    xcb_connection_t *m_connection;
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#include "hostwindowwatcher.h"

#include <QSocketNotifier>

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>

namespace OrvGui {

HostWindowWatcher::HostWindowWatcher(unsigned long window, QObject *parent)
    : QObject(parent), m_window(window), m_connection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_connection))
        return;
    auto *notifier =
        new QSocketNotifier(xcb_get_file_descriptor(m_connection), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        readEvents();
        if (xcb_connection_has_error(m_connection))
            notifier->setEnabled(false);
    });

    const uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, static_cast<xcb_window_t>(m_window),
                                 XCB_CW_EVENT_MASK, &mask);
    xcb_flush(m_connection);
}

HostWindowWatcher::~HostWindowWatcher()
{
    xcb_disconnect(m_connection);
}

void HostWindowWatcher::readEvents()
{
    QSize size;
    while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
        if ((event->response_type & 0x7f) == XCB_CONFIGURE_NOTIFY) {
            const auto *configure = reinterpret_cast<xcb_configure_notify_event_t *>(event);
            size = QSize(configure->width, configure->height);
        }
        std::free(event);
    }
    if (size.isValid())
        emit resized(size);
}

} // namespace OrvGui

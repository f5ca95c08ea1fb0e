// SPDX-License-Identifier: MIT
#include "api/hostwindow.h"

#include <QGuiApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace OrvGui {

namespace {

struct Free
{
    void operator()(void *memory) const { std::free(memory); }
};

template<typename T>
using Owned = std::unique_ptr<T, Free>;

} // namespace

HostWindow::HostWindow(unsigned long window, QObject *parent)
    : QObject(parent), m_window(static_cast<std::uint32_t>(window))
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    m_connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(m_connection)) {
        xcb_disconnect(m_connection);
        m_connection = nullptr;
        return;
    }
    listen();
}

HostWindow::~HostWindow()
{
    if (m_connection)
        xcb_disconnect(m_connection);
}

QSize HostWindow::size() const
{
    if (!m_connection)
        return QSize();
    const Owned<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, m_window), nullptr));
    return geometry ? QSize(geometry->width, geometry->height) : QSize();
}

QRect HostWindow::area() const
{
    if (!m_connection)
        return QRect();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    const Owned<xcb_translate_coordinates_reply_t> origin(xcb_translate_coordinates_reply(
        m_connection, xcb_translate_coordinates(m_connection, m_window, root, 0, 0), nullptr));
    return origin ? QRect(QPoint(origin->dst_x, origin->dst_y), size()) : QRect();
}

void HostWindow::listen()
{
    const uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, m_window, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(m_connection);

    auto *notifier =
        new QSocketNotifier(xcb_get_file_descriptor(m_connection), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        readEvents();
        if (xcb_connection_has_error(m_connection))
            notifier->setEnabled(false);
    });
    // Events that arrive with a reply, such as the first size, do not activate the notifier.
    QTimer::singleShot(0, this, &HostWindow::readEvents);
}

void HostWindow::readEvents()
{
    QSize size;
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
        if ((event->response_type & 0x7f) != XCB_CONFIGURE_NOTIFY)
            continue;
        const auto *configure = reinterpret_cast<xcb_configure_notify_event_t *>(event.get());
        size = QSize(configure->width, configure->height);
    }
    if (size.isValid())
        emit resized(size);
}

} // namespace OrvGui

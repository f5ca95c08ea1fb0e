// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>

/// A connection to the X server without Qt: the screen as another program sees it.
class XView
{
public:
    XView() : m_connection(xcb_connect(nullptr, nullptr)) {}
    ~XView() { xcb_disconnect(m_connection); }
    XView(const XView &) = delete;
    XView &operator=(const XView &) = delete;

    bool isConnected() const { return !xcb_connection_has_error(m_connection); }

    xcb_screen_t &screen() const
    {
        return *xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    }

    /// Creates and shows a window of that colour.
    xcb_window_t makeWindow(xcb_window_t parent, const QRect &rect, quint32 colour)
    {
        const xcb_window_t window = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, parent,
                          static_cast<int16_t>(rect.x()), static_cast<int16_t>(rect.y()),
                          static_cast<uint16_t>(rect.width()), static_cast<uint16_t>(rect.height()),
                          0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL,
                          &colour);
        xcb_map_window(m_connection, window);
        sync();
        return window;
    }

    void resize(xcb_window_t window, const QSize &size)
    {
        const uint32_t values[] = {static_cast<uint32_t>(size.width()),
                                   static_cast<uint32_t>(size.height())};
        xcb_configure_window(m_connection, window,
                             XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, values);
        sync();
    }

    void destroy(xcb_window_t window)
    {
        xcb_destroy_window(m_connection, window);
        sync();
    }

    void askToClose(xcb_window_t window) const
    {
        xcb_client_message_event_t event = {};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = window;
        event.type = atom("WM_PROTOCOLS");
        event.data.data32[0] = atom("WM_DELETE_WINDOW");
        xcb_send_event(m_connection, 0, window, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char *>(&event));
        sync();
    }

    /// Null if the window does not exist.
    QRect geometry(xcb_window_t window) const
    {
        const auto reply = owned(
            xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
        return reply ? QRect(reply->x, reply->y, reply->width, reply->height) : QRect();
    }

    QList<xcb_window_t> children(xcb_window_t window) const
    {
        QList<xcb_window_t> found;
        const auto reply = owned(
            xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
        for (int i = 0; reply && i < xcb_query_tree_children_length(reply.get()); ++i)
            found << xcb_query_tree_children(reply.get())[i];
        return found;
    }

    /// The window that this one must stay above.
    xcb_window_t ownerOf(xcb_window_t window) const
    {
        const auto reply = owned(xcb_get_property_reply(m_connection,
                                                        xcb_get_property(m_connection, 0, window,
                                                                         XCB_ATOM_WM_TRANSIENT_FOR,
                                                                         XCB_ATOM_WINDOW, 0, 1),
                                                        nullptr));
        return reply ? *static_cast<xcb_window_t *>(xcb_get_property_value(reply.get())) : 0;
    }

    QByteArray title(xcb_window_t window) const
    {
        const auto reply = owned(xcb_get_property_reply(
            m_connection,
            xcb_get_property(m_connection, 0, window, XCB_ATOM_WM_NAME, XCB_ATOM_ANY, 0, 100),
            nullptr));
        return reply ? QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())),
                                  xcb_get_property_value_length(reply.get()))
                     : QByteArray();
    }

    /// The contents of the window on the screen, including its children.
    QImage picture(xcb_window_t window) const
    {
        const QSize size = geometry(window).size();
        const auto reply =
            owned(xcb_get_image_reply(m_connection,
                                      xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window,
                                                    0, 0, static_cast<uint16_t>(size.width()),
                                                    static_cast<uint16_t>(size.height()), ~0u),
                                      nullptr));
        QImage image(size, QImage::Format_RGB32);
        if (!reply || xcb_get_image_data_length(reply.get()) != size.width() * size.height() * 4)
            return QImage();
        std::memcpy(image.bits(), xcb_get_image_data(reply.get()),
                    static_cast<size_t>(xcb_get_image_data_length(reply.get())));
        return image;
    }

private:
    struct Free
    {
        void operator()(void *memory) const { std::free(memory); }
    };
    template<class Reply>
    static std::unique_ptr<Reply, Free> owned(Reply *reply)
    {
        return std::unique_ptr<Reply, Free>(reply);
    }

    xcb_atom_t atom(const char *name) const
    {
        const auto reply = owned(xcb_intern_atom_reply(
            m_connection,
            xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(std::strlen(name)), name),
            nullptr));
        return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }

    void sync() const
    {
        owned(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    }

    xcb_connection_t *m_connection;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "api/hostwindow.h"
#include "api/treeviewparent.h"

#include <QRect>
#include <QTimer>

namespace OrvGui {

/// A widget that fills a native window of its host and follows the size of that window.
///
/// The parent of the widget is the container that the holder has created around the host's window.
/// Qt's containers show a foreign window inside a Qt window; a host needs the reverse. Therefore
/// the container stays hidden, and the native window of the widget becomes a child of the host's
/// window.
template<class View>
class Embedded : public View
{
public:
    /// The holder must have wrapped a window.
    explicit Embedded(const TreeViewParent &holder) : View(holder.container)
    {
        this->setWindowFlags(Qt::Window);
        this->winId(); // makes the native window
        this->windowHandle()->setParent(holder.window);
        fill(holder.hostWindow->size());
        QObject::connect(holder.hostWindow, &HostWindow::resized, this, &Embedded::fill);
    }

    ~Embedded() override
    {
        // The holder is a child of this widget and is about to delete both parents of the widget:
        // the container and the host's QWindow. They must not delete the widget.
        this->destroy();
        this->setParent(nullptr);
    }

protected:
    void moveEvent(QMoveEvent *event) override
    {
        View::moveEvent(event);
        stay();
    }
    void resizeEvent(QResizeEvent *event) override
    {
        View::resizeEvent(event);
        stay();
    }

private:
    void fill(const QSize &devicePixels)
    {
        if (!devicePixels.isValid())
            return;
        const qreal ratio = this->windowHandle()->devicePixelRatio();
        m_place = QRect(0, 0, qRound(devicePixels.width() / ratio),
                        qRound(devicePixels.height() / ratio));
        this->setGeometry(m_place);
    }

    /// Restores the geometry. The window is a top-level window until it becomes a child of the
    /// host's window, and a window manager may move it during that time.
    void stay()
    {
        if (m_place.isValid() && this->geometry() != m_place)
            QTimer::singleShot(0, this, [this] { this->setGeometry(m_place); });
    }

    QRect m_place; ///< in the coordinates of the host's window
};

} // namespace OrvGui

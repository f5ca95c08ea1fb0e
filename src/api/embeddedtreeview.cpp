// SPDX-License-Identifier: MIT
#include "embeddedtreeview.h"

#include "hostwindow.h"
#include "treeviewparent.h"

#include <QTimer>

namespace OrvGui {

EmbeddedTreeView::EmbeddedTreeView(const TreeViewParent &holder)
    : OrvGenParamTreeView(holder.container)
{
    setWindowFlags(Qt::Window);
    winId(); // makes the native window
    windowHandle()->setParent(holder.window);
    fill(holder.hostWindow->size());
    connect(holder.hostWindow, &HostWindow::resized, this, &EmbeddedTreeView::fill);
}

EmbeddedTreeView::~EmbeddedTreeView()
{
    // The holder, our child, is about to delete both of our parents: the container and the host's
    // QWindow. They must not take us with them.
    destroy();
    setParent(nullptr);
}

void EmbeddedTreeView::fill(const QSize &devicePixels)
{
    if (!devicePixels.isValid())
        return;
    const qreal ratio = windowHandle()->devicePixelRatio();
    m_place =
        QRect(0, 0, qRound(devicePixels.width() / ratio), qRound(devicePixels.height() / ratio));
    setGeometry(m_place);
}

void EmbeddedTreeView::moveEvent(QMoveEvent *event)
{
    OrvGenParamTreeView::moveEvent(event);
    stay();
}

void EmbeddedTreeView::resizeEvent(QResizeEvent *event)
{
    OrvGenParamTreeView::resizeEvent(event);
    stay();
}

/// For a moment our window was one of the screen, and a window manager may place it only when it
/// has become part of the host's.
void EmbeddedTreeView::stay()
{
    if (m_place.isValid() && geometry() != m_place)
        QTimer::singleShot(0, this, [this] { setGeometry(m_place); });
}

} // namespace OrvGui

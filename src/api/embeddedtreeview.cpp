// SPDX-License-Identifier: MIT
#include "embeddedtreeview.h"

#include "hostwindow.h"
#include "treeviewparent.h"

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
    setGeometry(0, 0, qRound(devicePixels.width() / ratio), qRound(devicePixels.height() / ratio));
}

} // namespace OrvGui

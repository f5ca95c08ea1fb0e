// SPDX-License-Identifier: MIT
#include "embeddedtreeview.h"

#include "hostwindowwatcher.h"
#include "treeviewparent.h"

#include <QGuiApplication>

namespace OrvGui {

EmbeddedTreeView::EmbeddedTreeView(const TreeViewParent &holder)
    : OrvGenParamTreeView(holder.container)
{
    setWindowFlags(Qt::Window);
    winId(); // makes the native window
    windowHandle()->setParent(holder.window);
    setGeometry(QRect(QPoint(0, 0), holder.window->size()));

    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    auto *watcher = new HostWindowWatcher(holder.window->winId(), this);
    connect(watcher, &HostWindowWatcher::resized, this, &EmbeddedTreeView::fill);
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
    const qreal ratio = devicePixelRatioF();
    setGeometry(0, 0, qRound(devicePixels.width() / ratio), qRound(devicePixels.height() / ratio));
}

} // namespace OrvGui

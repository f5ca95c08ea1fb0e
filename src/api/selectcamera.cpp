// SPDX-License-Identifier: MIT
#include "api/selectcamera.h"

#include "api/applicationbootstrap.h"
#include "api/hostwindow.h"
#include "api/treeviewparent.h"
#include "selector/orvcameraselectordialog.h"

#include <QScreen>

#include <memory>

namespace OrvGui {

namespace {

/// Centres the dialog above the host's window. Qt would centre it above its parent, the hidden
/// container.
void center(QDialog &dialog, const QRect &devicePixels)
{
    if (!devicePixels.isValid())
        return;
    const QWindow &window = *dialog.windowHandle();
    const QRect screen = window.screen()->availableVirtualGeometry();
    const QPoint middle = devicePixels.center() / window.devicePixelRatio();
    dialog.resize(dialog.size().expandedTo(dialog.minimumSizeHint()));
    const QPoint place = middle - dialog.rect().center();
    dialog.move(qBound(screen.left(), place.x(), screen.right() - dialog.width()),
                qBound(screen.top(), place.y(), screen.bottom() - dialog.height()));
}

} // namespace

OrvCam::DeviceInfo *SelectCamera(OrvCam::System *system, const QString &title,
                                 unsigned long parentWindow)
{
    ensureApplication();
    TreeViewParent host; // must outlive the dialog, as must hostWindow
    std::unique_ptr<QWindow> hostWindow;
    if (parentWindow) {
        host.wrap(parentWindow);
        // A second QWindow for the host's window: the container has made the first one a child.
        if (host.container)
            hostWindow.reset(QWindow::fromWinId(static_cast<WId>(parentWindow)));
    }

    OrvCameraSelectorDialog dialog(system, host.container);
    dialog.setWindowTitle(title);
    if (hostWindow) {
        dialog.winId(); // makes the native window
        dialog.windowHandle()->setTransientParent(hostWindow.get());
        center(dialog, host.hostWindow->area());
    }
    return dialog.exec() == QDialog::Accepted ? dialog.selectedCamera() : nullptr;
}

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#include "selectcamera.h"

#include "applicationbootstrap.h"
#include "orvcameraselectordialog.h"
#include "treeviewparent.h"

namespace OrvGui {

OrvCam::DeviceInfo *SelectCamera(OrvCam::System *system, const QString &title,
                                 unsigned long parentWindow)
{
    ensureApplication();
    TreeViewParent holder; // outlives the dialog
    if (parentWindow)
        holder.wrap(parentWindow);

    OrvCameraSelectorDialog dialog(system, holder.container);
    dialog.setWindowTitle(title);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedCamera() : nullptr;
}

} // namespace OrvGui

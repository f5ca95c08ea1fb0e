// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <QDialog>
#include <QScopedPointer>

namespace OrvCam {
class DeviceInfo;
class System;
} // namespace OrvCam

namespace OrvGui {

class OrvCameraSelectorDialogPrivate;

/// Lets the user pick one of the cameras that a camera system can reach, and give a GigE Vision
/// camera a working address.
///
/// Construct it, run it with `exec`, and read `selectedCamera` when it was accepted; or use
/// `SelectCamera`, which does all three. Only a camera that can be opened is accepted; the dialog
/// does not open it. The search for cameras blocks the constructor, and "Rescan", for up to 200 ms
/// per interface; libOrvCameraApi needs that time once for all network adapters.
///
/// The system must outlive the dialog; a null system has no cameras. Use it on the GUI thread only.
class ORVCAMERAGUIAPI_EXPORT OrvCameraSelectorDialog : public QDialog
{
    Q_OBJECT

public:
    explicit OrvCameraSelectorDialog(OrvCam::System *system, QWidget *parent = nullptr);
    ~OrvCameraSelectorDialog() override;

    /// The current camera, which belongs to the system; null when there is none.
    OrvCam::DeviceInfo *selectedCamera() const;

    /// Has no effect: a camera cannot be preselected.
    void setSelectedCamera(OrvCam::DeviceInfo *camera);

private:
    QScopedPointer<OrvCameraSelectorDialogPrivate> d;
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Edits the two frame set-ups of a camera: output mode, exposure, line time, area of interest,
/// gain and wide dynamic range of frame A and frame B.
///
/// The tabs select the frame that the camera's features address. While the camera outputs one frame
/// only, the dialog keeps that frame selected: when a program selects the other one, the dialog
/// restores the selection from the event loop. When the selection changes, uncommitted input and an
/// unfinished drag are discarded. See `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigFrameABDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigFrameABDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui

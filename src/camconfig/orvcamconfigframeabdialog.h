// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Edits the two frame set-ups of a camera: output mode, exposure, line time, area of interest,
/// gain and wide dynamic range of frame A and frame B.
///
/// The tabs select the frame that the camera's features address. While the camera puts out one
/// frame only, that frame is selected: a program that selects the other one may look at it until it
/// returns to the event loop. What is typed but not entered, or still dragged, when another frame
/// is selected counts for neither. See `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigFrameABDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigFrameABDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Edits the two frame set-ups of a camera: output mode, exposure, line time, area of interest,
/// gain and wide dynamic range of frame A and frame B.
/// See `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigFrameABDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigFrameABDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui

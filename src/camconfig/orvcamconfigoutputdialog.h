// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Sets up the image data of a camera: format, processing of the pixels, and test pattern. See
/// `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigOutputDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigOutputDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui

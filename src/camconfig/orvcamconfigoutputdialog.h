// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Configures the data output of a camera.
/// See `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigOutputDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigOutputDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui

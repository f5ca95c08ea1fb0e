// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Sets up the two strobes of a camera, and the source and polarity of its two output lines.
///
/// A picture shows for each strobe whether its delay starts with the exposure or with the readout.
/// See `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigStrobeDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigStrobeDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Sets up the two strobes of a camera and what its two output lines put out.
///
/// A picture shows for each strobe whether its delay counts from the start of the exposure or from
/// that of the read-out.
/// See `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigStrobeDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigStrobeDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Sets up, starts and stops the pulse generator of a camera, and shows what follows from width and
/// period: the delay between two pulses and their frequency.
///
/// Text and lamp of the start button show what the user did last, or the state of the camera when
/// the device was set; a burst that ends by itself only lets the button come up. See
/// `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigPulseDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigPulseDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui

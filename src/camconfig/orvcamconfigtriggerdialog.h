// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Switches the trigger of a camera on and off, sets its source, edge and debouncing, and fires the
/// software trigger.
///
/// Source, edge and debouncing can be set while the trigger is on. The software trigger can be
/// fired while the trigger is on and its source is "Software". See `OrvCamConfigDialog` for the
/// rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigTriggerDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigTriggerDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui

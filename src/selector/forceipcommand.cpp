// SPDX-License-Identifier: MIT
#include "forceipcommand.h"

#include "waitcursor.h"

#include <OrvCam.h>
#include <OrvGenParam.h>

ForceIpCommand::ForceIpCommand(OrvGenParam::Array &parameters) : m_parameters(parameters) {}

ForceIpCommand::~ForceIpCommand()
{
    if (!isRunning())
        return;
    const WaitCursor waiting;
    wait();
}

void ForceIpCommand::run()
{
    m_hasSucceeded = m_parameters.ExecuteCommand("GevDeviceForceIP") == OrvCam::Success;
}

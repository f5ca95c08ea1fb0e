// SPDX-License-Identifier: MIT
#include "selector/forceipcommand.h"

#include "selector/waitcursor.h"

#include <OrvCam.h>
#include <OrvGenParam.h>

namespace {

/// The interval of repeated cancelling in ms; cancelling has no effect before the command starts.
const unsigned long cancelInterval = 20;

} // namespace

ForceIpCommand::ForceIpCommand(OrvCam::Interface &interface, OrvGenParam::Array &parameters)
    : m_forcing(dynamic_cast<OrvCam::AddressForcing *>(&interface)), m_parameters(parameters)
{
}

ForceIpCommand::~ForceIpCommand()
{
    if (!isRunning())
        return;
    const WaitCursor waiting;
    do
        giveUp();
    while (!wait(cancelInterval));
}

void ForceIpCommand::giveUp()
{
    if (m_forcing)
        m_forcing->giveUp();
}

void ForceIpCommand::run()
{
    m_hasSucceeded = m_parameters.ExecuteCommand("GevDeviceForceIP") == OrvCam::Success;
}

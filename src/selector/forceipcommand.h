// SPDX-License-Identifier: MIT
#pragma once

#include <QThread>

#include <atomic>

namespace OrvCam {
class AddressForcing;
class Interface;
} // namespace OrvCam

namespace OrvGenParam {
class Array;
}

/// Gives the camera that is selected in an interface's parameters the address that is set there,
/// or gives that up.
///
/// That waits until the camera is back, which takes seconds, and so runs on a thread of its own.
/// While it runs the camera system must not be used otherwise: it is for one thread at a time.
class ForceIpCommand : public QThread
{
    Q_OBJECT

public:
    ForceIpCommand(OrvCam::Interface &interface, OrvGenParam::Array &parameters);

    /// Gives up and waits for the end.
    ~ForceIpCommand() override;

    /// Has it end soon, if the interface can do that.
    void giveUp();

    /// To be asked after the end.
    bool hasSucceeded() const { return m_hasSucceeded; }

protected:
    void run() override;

private:
    OrvCam::AddressForcing *const m_forcing; ///< null when the interface cannot give up
    OrvGenParam::Array &m_parameters;
    std::atomic<bool> m_hasSucceeded{false};
};

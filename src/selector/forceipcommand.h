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

/// Forces the address that is set in an interface's parameters on the camera that is selected
/// there, or cancels that.
///
/// The command waits until the camera is back, which takes seconds, and therefore runs on a
/// separate thread. Do not use the camera system during that time: it is not thread-safe.
class ForceIpCommand : public QThread
{
    Q_OBJECT

public:
    ForceIpCommand(OrvCam::Interface &interface, OrvGenParam::Array &parameters);

    /// Cancels, and blocks until the command has ended.
    ~ForceIpCommand() override;

    /// Requests an early end, if the interface supports that.
    void giveUp();

    /// Call it after the command has ended.
    bool hasSucceeded() const { return m_hasSucceeded; }

protected:
    void run() override;

private:
    OrvCam::AddressForcing *const m_forcing; ///< null when the interface cannot cancel
    OrvGenParam::Array &m_parameters;
    std::atomic<bool> m_hasSucceeded{false};
};

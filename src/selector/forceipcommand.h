// SPDX-License-Identifier: MIT
#pragma once

#include <QThread>

namespace OrvGenParam {
class Array;
}

/// Gives the camera that is selected in an interface's parameters the address that is set there.
///
/// That waits until the camera is back, which takes seconds, and so runs on a thread of its own.
/// While it runs the camera system must not be used otherwise: it is for one thread at a time.
class ForceIpCommand : public QThread
{
    Q_OBJECT

public:
    explicit ForceIpCommand(OrvGenParam::Array &parameters);

    /// Waits for the end.
    ~ForceIpCommand() override;

    /// To be asked after the end.
    bool hasSucceeded() const { return m_hasSucceeded; }

protected:
    void run() override;

private:
    OrvGenParam::Array &m_parameters;
    bool m_hasSucceeded = false;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <cameranetwork.h>

#include <QByteArray>

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

/// How many cameras there are, and how they answer.
struct Condition
{
    int cameras = 1;
    int delay = 0; ///< ms, of each answer
    int loss = 0;  ///< per cent of the commands or of their answers
};

/// The traffic of all cameras together. A repeated command counts again.
struct Traffic
{
    unsigned commands = 0;
    unsigned packed = 0; ///< commands in which the same registers could have been read and written
    double polls = 0;    ///< per second, of the registers that were read, as described
    unsigned notPolled = 0; ///< commands with a register that is not described as polled
};

/// Cameras with one description in a network of their own, and the system that finds them.
class CameraSet
{
public:
    CameraSet(const QByteArray &description, const Condition &condition);
    ~CameraSet();

    const Condition &condition() const { return m_condition; }
    const std::vector<OrvCam::DeviceInfo *> &records() const { return m_records; }

    /// Since the last call of either.
    Traffic takeTraffic();
    /// The same without what is polled.
    Traffic takeUnpolledTraffic();

    void setSilent(bool isSilent);
    void switchOff();
    void switchOn();

    /// Threads of the cameras, which are no part of what is measured.
    bool isCameraThread(int id) const;

private:
    Traffic takeTraffic(bool withPolled);
    Traffic traffic(const std::vector<TestCamera::Access> &accesses, bool withPolled) const;
    void findCameras();

    const Condition m_condition;
    const std::map<uint32_t, int> m_polled;
    CameraNetwork m_network;
    std::vector<std::unique_ptr<TestCamera>> m_cameras;
    std::vector<int> m_cameraThreads;
    OrvCam::Released<OrvCam::System> m_system;
    std::vector<OrvCam::DeviceInfo *> m_records;
};

/// The ids of this process's threads.
std::vector<int> threadIds();

/// Milliseconds that the thread has been on a processor; 0 when there is no such thread.
double processorTime(int thread);

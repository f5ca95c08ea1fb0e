// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <cameranetwork.h>

#include <QByteArray>

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

/// The number of cameras and the quality of the connection.
struct Condition
{
    int cameras = 1;
    int delay = 0; ///< ms, of each answer
    int loss = 0;  ///< per cent of the commands and of the answers
};

/// The traffic of all cameras. A repeated command counts again.
struct Traffic
{
    unsigned commands = 0;
    unsigned packed = 0; ///< the least number of commands for the same registers
    double polls = 0; ///< per second, as the description declares for the registers that were read
    unsigned notPolled = 0; ///< commands with a register that is not declared as polled
};

/// Cameras with one description in a private network, and the system that finds them.
class CameraSet
{
public:
    CameraSet(const QByteArray &description, const Condition &condition);
    ~CameraSet();

    const Condition &condition() const { return m_condition; }
    const std::vector<OrvCam::DeviceInfo *> &records() const { return m_records; }

    /// Returns the traffic since the last call of this function or of `takeUnpolledTraffic()`.
    Traffic takeTraffic();
    /// The same without the polled registers.
    Traffic takeUnpolledTraffic();

    void setSilent(bool isSilent);
    void switchOff();
    void switchOn();

    /// Whether the thread belongs to a camera and must not be measured.
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

/// The processor time of the thread in milliseconds; 0 if it does not exist.
double processorTime(int thread);

// SPDX-License-Identifier: MIT
#include "cameraset.h"

#include "polledregisters.h"

#include <simulation/simulatedcamera.h>

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <set>

namespace {

constexpr int mostRegisters = 134; // limit of one READREG

TestCameraBehaviour behaviourFor(const Condition &condition, unsigned seed)
{
    TestCameraBehaviour behaviour;
    behaviour.delay = condition.delay;
    behaviour.requestLoss = condition.loss - condition.loss / 2;
    behaviour.answerLoss = condition.loss / 2;
    behaviour.seed = seed;
    return behaviour;
}

/// Copies the simulated camera's registers, whose values are consistent with each other.
void fillLikeSimulation(TestCamera &camera)
{
    const uint32_t first = 0x1000; // of the camera's own registers
    const uint32_t end = 0x10000;
    const OrvSimulation::SimulatedCamera simulation;
    std::vector<OrvCameraIo::ReadTransfer> registers;
    for (uint32_t address = first; address < end; address += 4)
        registers.push_back({{address, 4}, OrvCameraIo::Status::Failed, {}});
    simulation.port()->read(registers);
    for (const OrvCameraIo::ReadTransfer &read : registers) {
        uint32_t word = 0;
        for (const uint8_t byte : read.bytes)
            word = word << 8 | byte;
        camera.setRegister(static_cast<uint32_t>(read.range.address), word);
    }
}

} // namespace

CameraSet::CameraSet(const QByteArray &description, const Condition &condition)
    : m_condition(condition)
    , m_polled(polledRegisters(description.toStdString()))
    , m_network(QStringLiteral("orv0"), QStringLiteral("10.1.0.1/24"),
                QStringLiteral("10.1.0.2/24"))
{
    const std::vector<int> before = threadIds();
    for (int i = 0; i < condition.cameras; ++i) {
        const QByteArray address = "10.1.0." + QByteArray::number(2 + i);
        if (i > 0)
            m_network.runFar("ip", "addr add " + QString::fromLatin1(address) + "/24 dev " +
                                       m_network.farName());
        TestCamera::Settings settings =
            m_network.cameraSettings(0x020000000001 + static_cast<uint64_t>(i), address);
        settings.serial = std::to_string(i + 1);
        settings.description = description.toStdString();
        settings.fillsRegisters = true;
        settings.unknownRegisters = TestCameraMemory::Unknown::Filled;
        m_cameras.push_back(std::make_unique<TestCamera>(settings));
        if (settings.description == *OrvSimulation::SimulatedCamera::description())
            fillLikeSimulation(*m_cameras.back());
        m_cameras.back()->setBehaviour(behaviourFor(condition, static_cast<unsigned>(i + 1)));
    }
    for (const int thread : threadIds()) {
        if (std::find(before.begin(), before.end(), thread) == before.end())
            m_cameraThreads.push_back(thread);
    }
    m_system.reset(OrvCam_GetSystem());
    findCameras();
}

CameraSet::~CameraSet()
{
    m_system.reset();
}

void CameraSet::findCameras()
{
    QElapsedTimer timer;
    timer.start();
    const auto count = static_cast<uint32_t>(m_condition.cameras);
    do {
        if (timer.hasExpired(30000))
            qFatal("The cameras do not come up");
        OrvCam_RefreshDevices(m_system.get(), 200 + 2 * static_cast<uint32_t>(m_condition.delay));
    } while (OrvCam_GetDeviceCount(m_system.get()) < count);
    for (uint32_t i = 0; i < count; ++i)
        m_records.push_back(OrvCam_GetDeviceInfo(m_system.get(), i));
}

Traffic CameraSet::takeTraffic()
{
    return takeTraffic(true);
}

Traffic CameraSet::takeUnpolledTraffic()
{
    return takeTraffic(false);
}

Traffic CameraSet::takeTraffic(bool withPolled)
{
    Traffic sum;
    for (const auto &camera : m_cameras) {
        const Traffic one = traffic(camera->takeAccesses(), withPolled);
        sum.commands += one.commands;
        sum.packed += one.packed;
        sum.polls += one.polls;
        sum.notPolled += one.notPolled;
    }
    return sum;
}

Traffic CameraSet::traffic(const std::vector<TestCamera::Access> &accesses, bool withPolled) const
{
    std::set<unsigned> packets;
    std::set<unsigned> notPolled;
    std::set<uint32_t> words;
    std::set<std::pair<uint32_t, uint32_t>> others;
    std::set<uint32_t> written;
    std::map<uint32_t, int> polled;
    for (const TestCamera::Access &access : accesses) {
        const auto period = access.isRead() ? m_polled.find(access.address) : m_polled.end();
        if (period != m_polled.end())
            polled.insert(*period);
        else
            notPolled.insert(access.packet);
        if (!withPolled && period != m_polled.end())
            continue;
        packets.insert(access.packet);
        if (!access.isRead())
            written.insert(access.address);
        else if (access.size == 4)
            words.insert(access.address);
        else
            others.insert({access.address, access.size});
    }
    Traffic traffic;
    traffic.commands = unsigned(packets.size());
    traffic.packed = unsigned((words.size() + mostRegisters - 1) / mostRegisters + others.size() +
                              written.size());
    for (const auto &[address, period] : polled)
        traffic.polls += 1000.0 / period;
    traffic.notPolled = unsigned(notPolled.size());
    return traffic;
}

void CameraSet::setSilent(bool isSilent)
{
    for (const auto &camera : m_cameras) {
        TestCameraBehaviour behaviour = camera->behaviour();
        behaviour.silence = isSilent ? -1 : 0;
        camera->setBehaviour(behaviour);
    }
}

void CameraSet::switchOff()
{
    for (const auto &camera : m_cameras)
        camera->unplug();
}

void CameraSet::switchOn()
{
    for (const auto &camera : m_cameras)
        camera->plugIn();
}

bool CameraSet::isCameraThread(int id) const
{
    return std::find(m_cameraThreads.begin(), m_cameraThreads.end(), id) != m_cameraThreads.end();
}

std::vector<int> threadIds()
{
    std::vector<int> ids;
    for (const auto &entry : std::filesystem::directory_iterator("/proc/self/task"))
        ids.push_back(std::stoi(entry.path().filename().string()));
    return ids;
}

double processorTime(int thread)
{
    const std::string name = "/proc/self/task/" + std::to_string(thread) + "/schedstat";
    double nanoseconds = 0;
    if (std::FILE *file = std::fopen(name.c_str(), "r")) {
        if (std::fscanf(file, "%lf", &nanoseconds) != 1)
            nanoseconds = 0;
        std::fclose(file);
    }
    return nanoseconds / 1e6;
}

// SPDX-License-Identifier: MIT
#include "simulation/simulatedcamera.h"

#include "simulation/camerabehaviour.h"
#include "simulation/description_p.h"
#include "simulation/startvalues.h"

#include <cameraio/maincontext.h>

#include <Base/GCException.h>

#include <mutex>
#include <set>

using OrvCameraIo::Clock;
using OrvCameraIo::ReadTransfer;
using OrvCameraIo::Status;

namespace OrvSimulation {

namespace {

constexpr unsigned timerInterval = 200; // ms

std::mutex &registryMutex()
{
    static std::mutex mutex;
    return mutex;
}

std::set<std::string> &openSerials()
{
    static std::set<std::string> serials;
    return serials;
}

// Reserves a serial number while an instance exists.
class Registration
{
public:
    explicit Registration(const std::string &serial) : m_serial(serial)
    {
        if (serial.empty())
            throw GenICam::InvalidArgumentException("A simulated camera needs a serial number",
                                                    __FILE__, __LINE__);
        const std::lock_guard<std::mutex> lock(registryMutex());
        if (!openSerials().insert(serial).second) {
            const std::string text = "The simulated camera " + serial + " is open already";
            throw GenICam::AccessException(text.c_str(), __FILE__, __LINE__);
        }
    }

    ~Registration()
    {
        const std::lock_guard<std::mutex> lock(registryMutex());
        openSerials().erase(m_serial);
    }

    Registration(const Registration &) = delete;
    Registration &operator=(const Registration &) = delete;

private:
    std::string m_serial;
};

CameraMemory switchedOn(const CameraIdentity &identity)
{
    CameraMemory memory;
    writeStartValues(memory, identity);
    return memory;
}

// The seed is a hash of the serial number (FNV-1a).
std::uint32_t seedOf(const std::string &serial)
{
    std::uint32_t hash = 2166136261U;
    for (const char character : serial)
        hash = (hash ^ static_cast<unsigned char>(character)) * 16777619U;
    return hash;
}

} // namespace

// The memory and the behaviour, which are used by hosts and by the timer on different threads.
class SimulatedCamera::Private
{
public:
    explicit Private(const CameraIdentity &id)
        : identity(id)
        , m_registration(id.serial)
        , m_memory(switchedOn(id))
        , m_behaviour(m_memory, seedOf(id.serial))
        , m_timer(timerInterval, [this] { tick(); })
    {
    }

    void advance(double seconds)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_behaviour.advance(seconds);
    }

    Status read(uint64_t address, uint32_t size, std::vector<uint8_t> &bytes) const
    {
        if (!CameraMemory::holds(address, size))
            return Status::InvalidAddress;
        const std::lock_guard<std::mutex> lock(m_mutex);
        bytes = m_memory.readBlock(static_cast<Registers::Address>(address), size);
        return Status::Done;
    }

    Status write(uint64_t address, const std::vector<uint8_t> &bytes)
    {
        if (!CameraMemory::holds(address, bytes.size()))
            return Status::InvalidAddress;
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_memory.writeBlock(static_cast<Registers::Address>(address), bytes);
        m_behaviour.advance(0);
        return Status::Done;
    }

    const CameraIdentity identity;

private:
    void tick()
    {
        const Clock::time_point now = Clock::now();
        advance(std::chrono::duration<double>(now - m_lastTick).count());
        m_lastTick = now;
    }

    const Registration m_registration;
    mutable std::mutex m_mutex; ///< guards the memory and the behaviour
    CameraMemory m_memory;
    CameraBehaviour m_behaviour;
    Clock::time_point m_lastTick = Clock::now();
    OrvCameraIo::MainContext::Timer m_timer; ///< last, because it uses all the others
};

class SimulatedCamera::Connection final : public OrvCameraIo::Port
{
public:
    explicit Connection(std::shared_ptr<Private> camera) : m_camera(std::move(camera)) {}

    bool isImmediate() const override { return true; }

    void read(std::vector<ReadTransfer> &batch) override
    {
        for (ReadTransfer &transfer : batch)
            transfer.status =
                m_camera->read(transfer.range.address, transfer.range.size, transfer.bytes);
    }

    Status write(uint64_t address, const std::vector<uint8_t> &bytes) override
    {
        return m_camera->write(address, bytes);
    }

private:
    const std::shared_ptr<Private> m_camera;
};

SimulatedCamera::SimulatedCamera(const CameraIdentity &identity)
    : d(std::make_shared<Private>(identity))
{
}

SimulatedCamera::~SimulatedCamera() = default;

std::unique_ptr<OrvCameraIo::Port> SimulatedCamera::port() const
{
    return std::make_unique<Connection>(d);
}

const CameraIdentity &SimulatedCamera::identity() const
{
    return d->identity;
}

void SimulatedCamera::advance(double seconds)
{
    d->advance(seconds);
}

bool SimulatedCamera::isOpen(const std::string &serial)
{
    const std::lock_guard<std::mutex> lock(registryMutex());
    return openSerials().count(serial) > 0;
}

std::shared_ptr<const std::string> SimulatedCamera::description()
{
    static const auto text = std::make_shared<const std::string>(
        reinterpret_cast<const char *>(simulatedCameraDescription), simulatedCameraDescriptionSize);
    return text;
}

} // namespace OrvSimulation

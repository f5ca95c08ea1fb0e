// SPDX-License-Identifier: MIT
#include "simulation/simulatedcamera.h"

#include "simulation/camerabehaviour.h"
#include "simulation/description_p.h"
#include "simulation/startvalues.h"

#include <Base/GCException.h>

#include <arv.h>

#include <mutex>
#include <set>

#include <sys/mman.h>
#include <unistd.h>

namespace OrvSimulation {

namespace {

constexpr guint timerInterval = 200; // ms

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

// Holds a serial number as long as it lives.
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

// A file that holds the description and has no place in the file system, as Aravis takes nothing
// but a file name.
class DescriptionFile
{
public:
    DescriptionFile() : m_file(memfd_create("simulated-camera-description", MFD_CLOEXEC))
    {
        const SimulatedCamera::Text text = SimulatedCamera::description();
        std::size_t written = 0;
        while (m_file >= 0 && written < text.size) {
            const ssize_t count = ::write(m_file, text.data + written, text.size - written);
            if (count <= 0) {
                ::close(m_file);
                m_file = -1;
            } else {
                written += static_cast<std::size_t>(count);
            }
        }
    }

    ~DescriptionFile()
    {
        if (m_file >= 0)
            ::close(m_file);
    }

    DescriptionFile(const DescriptionFile &) = delete;
    DescriptionFile &operator=(const DescriptionFile &) = delete;

    bool isValid() const { return m_file >= 0; }
    std::string path() const { return "/proc/self/fd/" + std::to_string(m_file); }

private:
    int m_file;
};

// The name of the description is one for the whole process, so nobody may come between setting it
// and making the device.
ArvDevice *makeDevice(const std::string &serial)
{
    const DescriptionFile file;
    if (!file.isValid())
        throw GenICam::RuntimeException(
            "There is no memory for the description of the simulated camera", __FILE__, __LINE__);

    static std::mutex mutex;
    const std::lock_guard<std::mutex> lock(mutex);
    GError *error = nullptr;
    arv_set_fake_camera_genicam_filename(file.path().c_str());
    ArvDevice *device = arv_fake_device_new(serial.c_str(), &error);
    arv_set_fake_camera_genicam_filename(nullptr);
    if (device && !error)
        return device;

    const std::string text = "The simulated camera " + serial +
                             " cannot be made: " + (error ? error->message : "unknown error");
    g_clear_error(&error);
    g_clear_object(&device);
    throw GenICam::RuntimeException(text.c_str(), __FILE__, __LINE__);
}

// The same serial number always gives the same camera (FNV-1a).
std::uint32_t seedOf(const std::string &serial)
{
    std::uint32_t hash = 2166136261U;
    for (const char character : serial)
        hash = (hash ^ static_cast<unsigned char>(character)) * 16777619U;
    return hash;
}

} // namespace

struct SimulatedCamera::Private
{
    explicit Private(const CameraIdentity &id)
        : identity(id)
        , registration(id.serial)
        , device(makeDevice(id.serial))
        , memory(arv_fake_device_get_fake_camera(ARV_FAKE_DEVICE(device)))
    {
        writeStartValues(memory, identity);
        behaviour = std::make_unique<CameraBehaviour>(memory, seedOf(identity.serial));
        lastTick = g_get_monotonic_time();
        timer = g_timeout_source_new(timerInterval);
        g_source_set_callback(timer, onTimer, this, nullptr);
        g_source_attach(timer, nullptr);
    }

    ~Private()
    {
        g_source_destroy(timer);
        g_source_unref(timer);
        g_object_unref(device);
    }

    Private(const Private &) = delete;
    Private &operator=(const Private &) = delete;

    static gboolean onTimer(gpointer data)
    {
        auto *self = static_cast<Private *>(data);
        const gint64 now = g_get_monotonic_time();
        const double seconds = static_cast<double>(now - self->lastTick) * 1e-6;
        self->lastTick = now;
        self->behaviour->advance(seconds);
        return G_SOURCE_CONTINUE;
    }

    CameraIdentity identity;
    Registration registration;
    ArvDevice *device;
    CameraMemory memory;
    std::unique_ptr<CameraBehaviour> behaviour;
    GSource *timer = nullptr;
    gint64 lastTick = 0;
};

SimulatedCamera::SimulatedCamera(const CameraIdentity &identity)
    : d(std::make_unique<Private>(identity))
{
}

SimulatedCamera::~SimulatedCamera() = default;

ArvDevice *SimulatedCamera::device() const
{
    return d->device;
}

const CameraIdentity &SimulatedCamera::identity() const
{
    return d->identity;
}

void SimulatedCamera::advance(double seconds)
{
    d->behaviour->advance(seconds);
}

bool SimulatedCamera::isOpen(const std::string &serial)
{
    const std::lock_guard<std::mutex> lock(registryMutex());
    return openSerials().count(serial) > 0;
}

SimulatedCamera::Text SimulatedCamera::description()
{
    return {reinterpret_cast<const char *>(simulatedCameraDescription),
            simulatedCameraDescriptionSize};
}

} // namespace OrvSimulation

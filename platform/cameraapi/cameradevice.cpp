// SPDX-License-Identifier: MIT
#include "cameradevice.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace OrvCam {

namespace {

constexpr unsigned pollPeriodMs = 200;

void makeReadOnly(GenApi::INodeMap &nodeMap)
{
    GenApi::NodeList_t nodes;
    nodeMap.GetNodes(nodes);
    for (GenApi::INode *node : nodes) {
        if (node->IsFeature())
            node->ImposeAccessMode(GenApi::RO);
    }
}

} // namespace

bool CameraDevice::Registration::operator==(const Registration &other) const
{
    return eventCode == other.eventCode && callback == other.callback && context == other.context;
}

CameraDevice *CameraDevice::open(std::shared_ptr<void> owner, DeviceInfo &info,
                                 const std::shared_ptr<CameraConnector> &connector,
                                 int32_t accessMode, int32_t &error, const OpenProgress &progress,
                                 std::thread::id homeThread)
{
    auto connection = connector->open(accessMode, progress, error);
    if (!connection)
        return nullptr;
    try {
        if (accessMode == AccessMonitor)
            makeReadOnly(connection->nodeMap());
        // Not a standard smart pointer, because the destructor is private.
        return new CameraDevice(std::move(owner), info, std::move(connection), homeThread);
    } catch (const GenICam::GenericException &) {
        error = ErrorBadDescription;
        return nullptr;
    }
}

CameraDevice::CameraDevice(std::shared_ptr<void> owner, DeviceInfo &info,
                           std::unique_ptr<CameraConnection> connection, std::thread::id homeThread)
    : m_owner(std::move(owner))
    , m_info(info)
    , m_connection(std::move(connection))
    , m_array(m_connection->nodeMap(), homeThread)
    , m_poller(std::make_unique<OrvCameraIo::MainContext::Timer>(pollPeriodMs, [this] { poll(); }))
{
    m_connection->setListener(this);
}

CameraDevice::~CameraDevice()
{
    m_connection->setListener(nullptr);
    m_poller.reset();
    // Notifies windows that still show the parameters that these are not available any more.
    if (m_isConnected)
        m_array.detach(ErrorGone);
}

void CameraDevice::Release()
{
    delete this;
}

void CameraDevice::lost()
{
    m_isConnected = false;
    m_array.detach(ErrorGone);
    emitEvent(EventDisconnected);
}

void CameraDevice::found()
{
    m_isConnected = true;
    m_array.attach();
    emitEvent(EventReconnected);
}

void CameraDevice::poll()
{
    using namespace std::chrono;
    const auto elapsed = duration_cast<milliseconds>(OrvCameraIo::Clock::now() - m_lastPoll);
    m_lastPoll += elapsed;
    if (!m_isConnected)
        return;
    try {
        m_connection->poll(elapsed.count());
    } catch (const GenICam::GenericException &) {
        // A node that cannot be polled now may succeed the next time.
    }
}

OrvGenParam::Array *CameraDevice::GetParamArray(int32_t *error)
{
    const bool isConnected = m_isConnected;
    if (error)
        *error = isConnected ? Success : ErrorGone;
    return isConnected ? &m_array : nullptr;
}

int32_t CameraDevice::RegisterEvent(int32_t eventCode, DeviceEventCallback callback, void *context)
{
    const Registration wanted{eventCode, callback, context};
    if (!callback || (eventCode != EventReconnected && eventCode != EventDisconnected))
        return ErrorInvalidArgument;
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (has(wanted))
        return ErrorInvalidArgument;
    m_registrations.push_back(wanted);
    return Success;
}

int32_t CameraDevice::UnregisterEvent(int32_t eventCode, DeviceEventCallback callback,
                                      void *context)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto found = std::find(m_registrations.begin(), m_registrations.end(),
                                     Registration{eventCode, callback, context});
        if (found == m_registrations.end())
            return ErrorNotFound;
        m_registrations.erase(found);
    }
    // The watching thread may be calling this callback.
    const std::lock_guard<std::recursive_mutex> wait(m_emitting);
    return Success;
}

bool CameraDevice::has(const Registration &registration) const
{
    return std::find(m_registrations.begin(), m_registrations.end(), registration) !=
           m_registrations.end();
}

bool CameraDevice::isRegistered(const Registration &registration) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return has(registration);
}

void CameraDevice::emitEvent(int32_t eventCode)
{
    std::vector<Registration> registrations;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        registrations = m_registrations;
    }
    const std::lock_guard<std::recursive_mutex> emitting(m_emitting);
    for (const Registration &registration : registrations) {
        if (registration.eventCode == eventCode && isRegistered(registration))
            registration.callback(eventCode, registration.context);
    }
}

} // namespace OrvCam

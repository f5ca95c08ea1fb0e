// SPDX-License-Identifier: MIT
#include "cameradevice.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace OrvCam {

namespace {

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
                                 std::shared_ptr<CameraConnector> connector, int32_t accessMode,
                                 int32_t &error, unsigned watchPeriodMs)
{
    // Not a smart pointer of the standard: the destructor is the device's own affair.
    auto *device =
        new CameraDevice(std::move(owner), info, std::move(connector), accessMode, watchPeriodMs);
    std::unique_ptr<Session> session = device->connect(error);
    if (!session) {
        delete device;
        return nullptr;
    }
    device->enter(std::move(session));
    device->m_watcher = std::thread(&CameraDevice::watch, device);
    return device;
}

CameraDevice::CameraDevice(std::shared_ptr<void> owner, DeviceInfo &info,
                           std::shared_ptr<CameraConnector> connector, int32_t accessMode,
                           unsigned watchPeriodMs)
    : m_owner(std::move(owner))
    , m_info(info)
    , m_connector(std::move(connector))
    , m_accessMode(accessMode)
    , m_watchPeriodMs(watchPeriodMs)
{
}

CameraDevice::~CameraDevice()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = true;
    }
    m_wake.notify_all();
    if (m_watcher.joinable())
        m_watcher.join();
    // Whoever still shows the parameters learns that they are not available any more.
    if (Session *current = std::exchange(m_current, nullptr))
        current->array->detach(ErrorGone);
}

void CameraDevice::Release()
{
    delete this;
}

std::unique_ptr<CameraDevice::Session> CameraDevice::connect(int32_t &error)
{
    auto session = std::make_unique<Session>();
    session->connection = m_connector->open(m_accessMode, error);
    if (!session->connection)
        return nullptr;
    try {
        GenApi::INodeMap &nodeMap = session->connection->nodeMap();
        if (m_accessMode == AccessMonitor)
            makeReadOnly(nodeMap);
        session->array = std::make_unique<OrvGenParam::NodeMapArray>(nodeMap, m_homeThread);
    } catch (const GenICam::GenericException &) {
        error = ErrorBadDescription;
        return nullptr;
    }
    error = Success;
    return session;
}

void CameraDevice::enter(std::unique_ptr<Session> session)
{
    session->poller = std::make_unique<NodeMapPoller>(session->connection->nodeMap());
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_current = session.get();
    m_sessions.push_back(std::move(session));
}

void CameraDevice::watch()
{
    const auto period = std::chrono::milliseconds(m_watchPeriodMs);
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_wake.wait_for(lock, period, [this] { return m_stop; })) {
        Session *current = m_current;
        Session *last = m_sessions.back().get();
        lock.unlock();
        if (current) {
            if (!current->connection->isAlive())
                lose(*current);
        } else {
            int32_t error = Success;
            if (auto session = connect(error)) {
                enter(std::move(session));
                emitEvent(EventReconnected);
            } else if (error == ErrorBusy) {
                // After a short interruption, the one who keeps it busy may be us.
                last->connection->abandon();
            }
        }
        lock.lock();
    }
}

void CameraDevice::lose(Session &session)
{
    session.poller.reset();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_current = nullptr;
    }
    session.array->detach(ErrorGone);
    emitEvent(EventDisconnected);
}

OrvGenParam::Array *CameraDevice::GetParamArray(int32_t *error)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (error)
        *error = m_current ? Success : ErrorGone;
    return m_current ? m_current->array.get() : nullptr;
}

bool CameraDevice::IsConnected() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_current != nullptr;
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
    // A call that is under way on the watching thread may be of this callback.
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

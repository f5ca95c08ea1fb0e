// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/registerio.h>

#include <atomic>
#include <mutex>
#include <thread>

/// The cable of a camera, for tests that unplug it and plug it in again. As with a real connection,
/// the listener is notified on another thread.
class Plug
{
public:
    Plug() = default;
    ~Plug() { waitForNotification(); }
    Plug(const Plug &) = delete;

    operator bool() const { return m_isIn; }

    Plug &operator=(bool isIn)
    {
        waitForNotification();
        if (m_isIn.exchange(isIn) != isIn) {
            m_notifier = std::thread([this, isIn] {
                const std::lock_guard<std::recursive_mutex> lock(m_mutex);
                if (m_listener)
                    isIn ? m_listener->found() : m_listener->lost();
            });
        }
        return *this;
    }

    void setListener(OrvCameraIo::RegisterIoListener *listener)
    {
        const std::lock_guard<std::recursive_mutex> lock(m_mutex);
        m_listener = listener;
    }

private:
    void waitForNotification()
    {
        if (m_notifier.joinable())
            m_notifier.join();
    }

    std::atomic<bool> m_isIn{true};
    std::recursive_mutex m_mutex;
    OrvCameraIo::RegisterIoListener *m_listener = nullptr;
    std::thread m_notifier;
};

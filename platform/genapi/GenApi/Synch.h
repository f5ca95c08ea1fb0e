// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Types.h>

#include <atomic>
#include <mutex>
#include <thread>

namespace GenApi_3_0 {

/// The recursive lock of a node map.
class GENAPI_DECL CLock
{
public:
    CLock() = default;
    CLock(const CLock &) = delete;
    CLock &operator=(const CLock &) = delete;

    void Lock();
    void Unlock();
    bool TryLock();

    /// True when the calling thread holds the lock.
    bool IsHeldByThisThread() const;

private:
    void entered();

    std::recursive_mutex m_mutex;
    std::atomic<std::thread::id> m_owner{};
    int m_depth = 0;
};

/// Holds a lock for the lifetime of the object.
class AutoLock
{
public:
    explicit AutoLock(CLock &lock) : m_lock(lock) { m_lock.Lock(); }
    ~AutoLock() { m_lock.Unlock(); }
    AutoLock(const AutoLock &) = delete;
    AutoLock &operator=(const AutoLock &) = delete;

private:
    CLock &m_lock;
};

} // namespace GenApi_3_0

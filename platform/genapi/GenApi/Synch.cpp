// SPDX-License-Identifier: MIT
#include <GenApi/Synch.h>

namespace GenApi_3_0 {

void CLock::Lock()
{
    m_mutex.lock();
    entered();
}

bool CLock::TryLock()
{
    if (!m_mutex.try_lock())
        return false;
    entered();
    return true;
}

void CLock::entered()
{
    m_owner = std::this_thread::get_id();
    ++m_depth;
}

void CLock::Unlock()
{
    if (--m_depth == 0)
        m_owner = std::thread::id();
    m_mutex.unlock();
}

bool CLock::IsHeldByThisThread() const
{
    return m_owner == std::this_thread::get_id();
}

} // namespace GenApi_3_0

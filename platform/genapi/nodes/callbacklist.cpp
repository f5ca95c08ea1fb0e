// SPDX-License-Identifier: MIT
#include "callbacklist.h"

#include <algorithm>
#include <condition_variable>
#include <thread>

namespace OrvGenApi {

class CallbackList::Entry
{
public:
    explicit Entry(GenApi::CNodeCallback *callback) : m_callback(callback) {}
    ~Entry() { destroy(); }

    GenApi::CallbackHandleType handle() const { return m_handle; }

    void call(GenApi::ECallbackType type)
    {
        if (!enter())
            return;
        try {
            (*m_callback)(type);
        } catch (const GenICam::GenericException &) {
        } catch (...) {
            leave();
            throw;
        }
        leave();
    }

    void kill(bool mayWait)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_dead = true;
        const auto self = std::this_thread::get_id();
        const auto onlyOurs = [&] {
            return std::all_of(m_running.begin(), m_running.end(),
                               [&](std::thread::id id) { return id == self; });
        };
        if (mayWait)
            m_left.wait(lock, onlyOurs);
        if (m_running.empty())
            destroy();
    }

private:
    bool enter()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_dead)
            return false;
        m_running.push_back(std::this_thread::get_id());
        return true;
    }

    void leave()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_running.erase(std::find(m_running.begin(), m_running.end(), std::this_thread::get_id()));
        if (m_dead && m_running.empty())
            destroy();
        m_left.notify_all();
    }

    void destroy()
    {
        if (m_callback)
            m_callback->Destroy();
        m_callback = nullptr;
    }

    GenApi::CNodeCallback *m_callback;
    const GenApi::CallbackHandleType m_handle =
        reinterpret_cast<GenApi::CallbackHandleType>(m_callback);
    std::mutex m_mutex;
    std::condition_variable m_left;
    std::vector<std::thread::id> m_running;
    bool m_dead = false;
};

CallbackList::CallbackList() = default;
CallbackList::~CallbackList() = default;

GenApi::CallbackHandleType CallbackList::add(GenApi::CNodeCallback *callback)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_entries.push_back(std::make_shared<Entry>(callback));
    return m_entries.back()->handle();
}

bool CallbackList::remove(GenApi::CallbackHandleType handle, bool mayWait)
{
    std::shared_ptr<Entry> entry;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                        [&](const auto &e) { return e->handle() == handle; });
        if (found == m_entries.end())
            return false;
        entry = *found;
        m_entries.erase(found);
    }
    entry->kill(mayWait);
    return true;
}

void CallbackList::call(GenApi::ECallbackType type)
{
    std::vector<std::shared_ptr<Entry>> entries;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        entries = m_entries;
    }
    for (const auto &entry : entries)
        entry->call(type);
}

bool CallbackList::isEmpty() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_entries.empty();
}

} // namespace OrvGenApi

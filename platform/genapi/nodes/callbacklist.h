// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/NodeCallback.h>

#include <memory>
#include <mutex>
#include <vector>

namespace OrvGenApi {

/// The callbacks of one node. Callbacks may register, deregister and run on any thread, also from
/// inside each other.
class CallbackList
{
public:
    CallbackList();
    ~CallbackList();
    CallbackList(const CallbackList &) = delete;
    CallbackList &operator=(const CallbackList &) = delete;

    /// Takes ownership.
    GenApi::CallbackHandleType add(GenApi::CNodeCallback *callback);

    /// Destroys the callback; false for an unknown handle. With `mayWait`, blocks until a call that
    /// is running on another thread has returned.
    bool remove(GenApi::CallbackHandleType handle, bool mayWait);

    /// Calls every callback that was registered at the beginning and is still registered at its
    /// turn. A GenICam exception of one does not prevent the calls of the others.
    void call(GenApi::ECallbackType type);

    bool isEmpty() const;

private:
    class Entry;

    mutable std::mutex m_mutex;
    std::vector<std::shared_ptr<Entry>> m_entries;
};

} // namespace OrvGenApi

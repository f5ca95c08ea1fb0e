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

    /// Destroys the callback; false when the handle is unknown. With `mayWait`, waits for a call
    /// that another thread is in the middle of.
    bool remove(GenApi::CallbackHandleType handle, bool mayWait);

    /// Calls every callback that was registered when the call began and is still registered when
    /// its turn comes. A GenICam exception of one does not keep the others from being called.
    void call(GenApi::ECallbackType type);

    bool isEmpty() const;

private:
    class Entry;

    mutable std::mutex m_mutex;
    std::vector<std::shared_ptr<Entry>> m_entries;
};

} // namespace OrvGenApi

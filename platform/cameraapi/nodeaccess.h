// SPDX-License-Identifier: MIT
#pragma once

#include "sinkregistrations.h"

#include <OrvCam/Codes.h>

#include <GenApi/GenApi.h>
#include <genapi/nodes/question.h>

#include <atomic>
#include <string>
#include <thread>

namespace OrvGenParam {

/// The `OrvCam::ErrorCode` of the exception being handled, which the node has thrown.
int32_t codeOfException(const GenApi::INode &node);

/// The common state of the parameters of an array.
struct ArrayState
{
    GenApi::INodeMap &nodeMap;
    const std::thread::id homeThread;           ///< where sinks are called
    std::atomic<int32_t> gone{OrvCam::Success}; ///< if not `Success`, every call returns it
};

/// The type-independent part of a parameter: a node, whose exceptions become error codes, and the
/// sinks that are notified of its changes.
class NodeAccess
{
public:
    NodeAccess(ArrayState &array, GenApi::INode &node, Param *param);
    ~NodeAccess();
    NodeAccess(const NodeAccess &) = delete;
    NodeAccess &operator=(const NodeAccess &) = delete;

    const std::string &name() const { return m_name; }
    const std::string &displayName() const { return m_displayName; }
    const std::string &description() const { return m_description; }
    SinkRegistrations &sinks() { return m_sinks; }

    /// Notifies the sink of changes from now on, even when the value is never read.
    void addSink(ParamEventSink *sink);

    /// NI when it cannot be determined.
    GenApi::EAccessMode accessMode() const;

    /// Runs the function and returns an `OrvCam::ErrorCode`.
    template<class Function>
    int32_t attempt(Function function) const
    {
        if (m_array.gone != OrvCam::Success)
            return m_array.gone;
        try {
            function();
            return OrvCam::Success;
        } catch (const OrvGenApi::NotYetKnown &) {
            throw; // look-ahead: the value is not cached
        } catch (...) {
            return codeOfException(m_node);
        }
    }

    /// Returns the result of the function, or `T()` when it fails.
    template<class T, class Function>
    T get(int32_t *error, Function function) const
    {
        T value{};
        const int32_t code = attempt([&] { value = function(); });
        if (error)
            *error = code;
        return code == OrvCam::Success ? value : T();
    }

    /// Notifies the sinks: at once on the home thread, otherwise through the main context.
    void notify();

private:
    void nodeChanged(GenApi::INode *);
    void keepPolled();

    ArrayState &m_array;
    GenApi::INode &m_node;
    std::string m_name;
    std::string m_displayName;
    std::string m_description;
    SinkRegistrations m_sinks;
    GenApi::CallbackHandleType m_callback = 0;
};

} // namespace OrvGenParam

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

/// The `OrvCam::ErrorCode` of the exception that is being handled, which came from that node.
int32_t codeOfException(const GenApi::INode &node);

/// What the parameters of one array have in common.
struct ArrayState
{
    GenApi::INodeMap &nodeMap;
    const std::thread::id homeThread;           ///< where sinks are called
    std::atomic<int32_t> gone{OrvCam::Success}; ///< otherwise the answer to every call
};

/// The part of a parameter that does not depend on its kind: a node, looked after so that nothing
/// it throws gets out, and the sinks that want to know about it.
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

    /// The sink is notified of changes from now on, even when the value is never read.
    void addSink(ParamEventSink *sink);

    /// NI when it cannot be found out.
    GenApi::EAccessMode accessMode() const;

    /// Runs the function and answers an `OrvCam::ErrorCode`.
    template<class Function>
    int32_t attempt(Function function) const
    {
        if (m_array.gone != OrvCam::Success)
            return m_array.gone;
        try {
            function();
            return OrvCam::Success;
        } catch (const OrvGenApi::NotYetKnown &) {
            throw; // the caller does not wait for the camera
        } catch (...) {
            return codeOfException(m_node);
        }
    }

    /// Answers what the function does, or `T()` when it fails.
    template<class T, class Function>
    T get(int32_t *error, Function function) const
    {
        T value{};
        const int32_t code = attempt([&] { value = function(); });
        if (error)
            *error = code;
        return code == OrvCam::Success ? value : T();
    }

    /// Tells the sinks: at once on the home thread, else through the main context.
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

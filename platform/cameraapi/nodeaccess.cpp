// SPDX-License-Identifier: MIT
#include "nodeaccess.h"

#include <genapi/nodes/node.h>

using namespace GenApi;

namespace OrvGenParam {

namespace {

std::string firstNonEmpty(const GenICam::gcstring &text, const GenICam::gcstring &otherwise)
{
    return (text.empty() ? otherwise : text).c_str();
}

/// Never fails, because it is called after a failure.
bool isAvailable(const INode &node)
{
    try {
        return GenApi::IsAvailable(node.GetAccessMode());
    } catch (const GenICam::GenericException &) {
        return true;
    }
}

} // namespace

int32_t codeOfException(const INode &node)
{
    try {
        throw;
    } catch (const GenICam::AccessException &) {
        return isAvailable(node) ? OrvCam::ErrorAccessDenied : OrvCam::ErrorNotAvailable;
    } catch (const GenICam::OutOfRangeException &) {
        return OrvCam::ErrorOutOfRange;
    } catch (const GenICam::InvalidArgumentException &) {
        return OrvCam::ErrorInvalidArgument;
    } catch (const GenICam::TimeoutException &) {
        return OrvCam::ErrorTimeout;
    } catch (...) {
        return OrvCam::ErrorFailed;
    }
}

NodeAccess::NodeAccess(ArrayState &array, INode &node, Param *param)
    : m_array(array)
    , m_node(node)
    , m_name(node.GetName().c_str())
    , m_displayName(firstNonEmpty(node.GetDisplayName(), node.GetName()))
    , m_description(firstNonEmpty(node.GetDescription(), node.GetToolTip()))
    , m_sinks(param)
    , m_callback(Register(&node, *this, &NodeAccess::nodeChanged, cbPostOutsideLock))
{
}

NodeAccess::~NodeAccess()
{
    try {
        m_node.DeregisterCallback(m_callback);
    } catch (...) {
        // A failure to deregister a callback cannot be handled here.
    }
}

EAccessMode NodeAccess::accessMode() const
{
    EAccessMode mode = NI;
    attempt([&] { mode = m_node.GetAccessMode(); });
    return mode;
}

void NodeAccess::nodeChanged(INode *)
{
    if (!m_sinks.isEmpty())
        keepPolled();
    notify();
}

void NodeAccess::keepPolled()
{
    if (auto *node = dynamic_cast<OrvGenApi::Node *>(&m_node))
        node->keepPolled();
}

void NodeAccess::addSink(ParamEventSink *sink)
{
    m_sinks.add(sink);
    keepPolled();
}

void NodeAccess::notify()
{
    if (std::this_thread::get_id() == m_array.homeThread)
        m_sinks.notify();
    else
        m_sinks.notifyLater();
}

} // namespace OrvGenParam

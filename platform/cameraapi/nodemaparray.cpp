// SPDX-License-Identifier: MIT
#include "nodemaparray.h"

#include "cameranodemap.h"
#include "nodeparams.h"

using namespace GenApi;

namespace OrvGenParam {

NodeMapArray::NodeMapArray(INodeMap &nodeMap, std::thread::id homeThread)
    : m_state{nodeMap, homeThread}
{
    NodeList_t nodes;
    nodeMap.GetNodes(nodes);
    for (INode *node : nodes) {
        if (node->IsFeature())
            add(*node);
    }
}

NodeMapArray::~NodeMapArray() = default;

void NodeMapArray::add(INode &node)
{
    switch (node.GetPrincipalInterfaceType()) {
    case intfIInteger:
        return addAs<NodeInt, IInteger>(node);
    case intfIFloat:
        return addAs<NodeFloat, IFloat>(node);
    case intfIEnumeration:
        return addAs<NodeEnum, IEnumeration>(node);
    case intfIBoolean:
        return addAs<NodeBoolean, IBoolean>(node);
    case intfICommand:
        return addAs<NodeCommand, ICommand>(node);
    case intfIString:
        return addAs<NodeString, IString>(node);
    default:
        return; // categories, registers and entries are not parameters
    }
}

template<class NodeKind, class Value>
void NodeMapArray::addAs(INode &node)
{
    auto *value = dynamic_cast<Value *>(&node);
    if (!value)
        return;
    auto param = std::make_unique<NodeKind>(m_state, node, *value);
    NodeAccess *access = &param->access();
    if (m_byName.emplace(param->GetName(), param.get()).second)
        m_entries.push_back({std::move(param), access});
}

void NodeMapArray::detach(int32_t code)
{
    m_state.gone = code;
    if (auto *map = dynamic_cast<OrvCam::CameraNodeMap *>(&m_state.nodeMap))
        map->setGone(code != OrvCam::Success);
    for (const Entry &entry : m_entries)
        entry.access->notify();
}

uint32_t NodeMapArray::GetCount() const
{
    return static_cast<uint32_t>(m_entries.size());
}

Param *NodeMapArray::GetParam(uint32_t index) const
{
    return index < m_entries.size() ? m_entries[index].param.get() : nullptr;
}

Param *NodeMapArray::GetParam(const char *name) const
{
    if (!name)
        return nullptr;
    const auto found = m_byName.find(name);
    return found == m_byName.end() ? nullptr : found->second;
}

template<class Kind>
Kind *NodeMapArray::find(const char *name) const
{
    return dynamic_cast<Kind *>(GetParam(name));
}

Int *NodeMapArray::GetInt(const char *name) const
{
    return find<Int>(name);
}

Float *NodeMapArray::GetFloat(const char *name) const
{
    return find<Float>(name);
}

Enum *NodeMapArray::GetEnum(const char *name) const
{
    return find<Enum>(name);
}

Boolean *NodeMapArray::GetBoolean(const char *name) const
{
    return find<Boolean>(name);
}

Command *NodeMapArray::GetCommand(const char *name) const
{
    return find<Command>(name);
}

String *NodeMapArray::GetString(const char *name) const
{
    return find<String>(name);
}

int64_t NodeMapArray::GetIntegerValue(const char *name, int32_t *error) const
{
    if (const Int *param = GetInt(name))
        return param->GetValue(error);
    if (error)
        *error = OrvCam::ErrorNotFound;
    return 0;
}

int32_t NodeMapArray::SetIntegerValue(const char *name, int64_t value)
{
    Int *param = GetInt(name);
    return param ? param->SetValue(value) : OrvCam::ErrorNotFound;
}

int32_t NodeMapArray::ExecuteCommand(const char *name)
{
    Command *param = GetCommand(name);
    return param ? param->Execute() : OrvCam::ErrorNotFound;
}

INodeMap *NodeMapArray::GetNodeMap(int32_t *error) const
{
    const int32_t code = m_state.gone;
    if (error)
        *error = code;
    return code == OrvCam::Success ? &m_state.nodeMap : nullptr;
}

} // namespace OrvGenParam

// SPDX-License-Identifier: MIT
#include "nodeparams.h"

using namespace GenApi;

namespace OrvGenParam {

NodeInt::NodeInt(ArrayState &array, INode &node, IInteger &value)
    : NodeParam(array, node, value), m_unit(value.GetUnit().c_str())
{
}

int64_t NodeInt::GetValue(int32_t *error) const
{
    return m_access.get<int64_t>(error, [this] { return m_value.GetValue(); });
}

int32_t NodeInt::SetValue(int64_t value)
{
    return m_access.attempt([&] { m_value.SetValue(value); });
}

int64_t NodeInt::GetMin(int32_t *error) const
{
    return m_access.get<int64_t>(error, [this] { return m_value.GetMin(); });
}

int64_t NodeInt::GetMax(int32_t *error) const
{
    return m_access.get<int64_t>(error, [this] { return m_value.GetMax(); });
}

int64_t NodeInt::GetInc(int32_t *error) const
{
    return m_access.get<int64_t>(error, [this] { return m_value.GetInc(); });
}

NodeFloat::NodeFloat(ArrayState &array, INode &node, IFloat &value)
    : NodeParam(array, node, value), m_unit(value.GetUnit().c_str())
{
}

double NodeFloat::GetValue(int32_t *error) const
{
    return m_access.get<double>(error, [this] { return m_value.GetValue(); });
}

int32_t NodeFloat::SetValue(double value)
{
    return m_access.attempt([&] { m_value.SetValue(value); });
}

double NodeFloat::GetMin(int32_t *error) const
{
    return m_access.get<double>(error, [this] { return m_value.GetMin(); });
}

double NodeFloat::GetMax(int32_t *error) const
{
    return m_access.get<double>(error, [this] { return m_value.GetMax(); });
}

double NodeFloat::GetInc(int32_t *error) const
{
    return m_access.get<double>(error,
                                [this] { return m_value.HasInc() ? m_value.GetInc() : 0.0; });
}

bool NodeBoolean::GetValue(int32_t *error) const
{
    return m_access.get<bool>(error, [this] { return m_value.GetValue(); });
}

int32_t NodeBoolean::SetValue(bool value)
{
    return m_access.attempt([&] { m_value.SetValue(value); });
}

int32_t NodeCommand::Execute()
{
    return m_access.attempt([this] { m_value.Execute(); });
}

bool NodeCommand::IsDone(int32_t *error) const
{
    return m_access.get<bool>(error, [this] { return m_value.IsDone(); });
}

const char *NodeString::GetValue(int32_t *error) const
{
    m_text = m_access.get<std::string>(
        error, [this]() -> std::string { return m_value.GetValue().c_str(); });
    return m_text.c_str();
}

int32_t NodeString::SetValue(const char *value)
{
    if (!value)
        return OrvCam::ErrorInvalidArgument;
    return m_access.attempt([&] { m_value.SetValue(value); });
}

int64_t NodeString::GetMaxLength(int32_t *error) const
{
    return m_access.get<int64_t>(error, [this] { return m_value.GetMaxLength(); });
}

class NodeEnumEntry final : public EnumEntry
{
public:
    NodeEnumEntry(const NodeAccess &access, INode &node, IEnumEntry &entry)
        : m_access(access)
        , m_node(node)
        , m_value(entry.GetValue())
        , m_symbolic(entry.GetSymbolic().c_str())
        , m_displayName(node.GetDisplayName().c_str())
    {
        if (m_displayName.empty())
            m_displayName = m_symbolic;
    }

    int64_t GetValue() const override { return m_value; }
    const char *GetSymbolic() const override { return m_symbolic.c_str(); }
    const char *GetDisplayName() const override { return m_displayName.c_str(); }

    bool IsAvailable() const override
    {
        return m_access.get<bool>(nullptr,
                                  [this] { return GenApi::IsAvailable(m_node.GetAccessMode()); });
    }

private:
    const NodeAccess &m_access;
    INode &m_node;
    int64_t m_value;
    std::string m_symbolic;
    std::string m_displayName;
};

NodeEnum::NodeEnum(ArrayState &array, INode &node, IEnumeration &value)
    : NodeParam(array, node, value)
{
    NodeList_t nodes;
    value.GetEntries(nodes);
    for (INode *entryNode : nodes) {
        std::unique_ptr<NodeEnumEntry> made;
        if (auto *entry = dynamic_cast<IEnumEntry *>(entryNode)) {
            m_access.attempt(
                [&] { made = std::make_unique<NodeEnumEntry>(m_access, *entryNode, *entry); });
        }
        m_entries.push_back(std::move(made));
    }
}

NodeEnum::~NodeEnum() = default;

EnumEntry *NodeEnum::GetEntry(uint32_t index) const
{
    return index < m_entries.size() ? m_entries[index].get() : nullptr;
}

int64_t NodeEnum::GetIntValue(int32_t *error) const
{
    return m_access.get<int64_t>(error, [this] { return m_value.GetIntValue(); });
}

int32_t NodeEnum::SetIntValue(int64_t value)
{
    return m_access.attempt([&] { m_value.SetIntValue(value); });
}

const char *NodeEnum::GetSymbolicValue(int32_t *error) const
{
    m_symbolic = m_access.get<std::string>(error, [this]() -> std::string {
        IEnumEntry *entry = m_value.GetCurrentEntry();
        return entry ? entry->GetSymbolic().c_str() : "";
    });
    return m_symbolic.c_str();
}

int32_t NodeEnum::SetSymbolicValue(const char *symbolic)
{
    if (!symbolic)
        return OrvCam::ErrorInvalidArgument;
    return m_access.attempt([&] { m_value.FromString(symbolic); });
}

} // namespace OrvGenParam

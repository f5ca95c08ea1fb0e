// SPDX-License-Identifier: MIT
#pragma once

#include "nodeaccess.h"

#include <OrvGenParam/Boolean.h>
#include <OrvGenParam/Command.h>
#include <OrvGenParam/Enum.h>
#include <OrvGenParam/Float.h>
#include <OrvGenParam/Int.h>
#include <OrvGenParam/String.h>

#include <memory>
#include <vector>

namespace OrvGenParam {

/// A parameter of one type for the node with its value.
template<class Kind, class Value, ParamType type>
class NodeParam : public Kind
{
public:
    NodeParam(ArrayState &array, GenApi::INode &node, Value &value)
        : m_access(array, node, this), m_value(value)
    {
    }

    const char *GetName() const override { return m_access.name().c_str(); }
    const char *GetDisplayName() const override { return m_access.displayName().c_str(); }
    const char *GetDescription() const override { return m_access.description().c_str(); }
    ParamType GetType() const override { return type; }
    bool IsAvailable() const override { return GenApi::IsAvailable(m_access.accessMode()); }
    bool IsReadable() const override { return GenApi::IsReadable(m_access.accessMode()); }
    bool IsWritable() const override { return GenApi::IsWritable(m_access.accessMode()); }
    void RegisterEventSink(ParamEventSink *sink) override { m_access.addSink(sink); }
    void UnregisterEventSink(ParamEventSink *sink) override { m_access.sinks().remove(sink); }

    NodeAccess &access() { return m_access; }

protected:
    NodeAccess m_access;
    Value &m_value;
};

class NodeInt final : public NodeParam<Int, GenApi::IInteger, ParamInt>
{
public:
    NodeInt(ArrayState &array, GenApi::INode &node, GenApi::IInteger &value);

    int64_t GetValue(int32_t *error = nullptr) const override;
    int32_t SetValue(int64_t value) override;
    int64_t GetMin(int32_t *error = nullptr) const override;
    int64_t GetMax(int32_t *error = nullptr) const override;
    int64_t GetInc(int32_t *error = nullptr) const override;
    const char *GetUnit() const override { return m_unit.c_str(); }

private:
    std::string m_unit;
};

class NodeFloat final : public NodeParam<Float, GenApi::IFloat, ParamFloat>
{
public:
    NodeFloat(ArrayState &array, GenApi::INode &node, GenApi::IFloat &value);

    double GetValue(int32_t *error = nullptr) const override;
    int32_t SetValue(double value) override;
    double GetMin(int32_t *error = nullptr) const override;
    double GetMax(int32_t *error = nullptr) const override;
    double GetInc(int32_t *error = nullptr) const override;
    const char *GetUnit() const override { return m_unit.c_str(); }

private:
    std::string m_unit;
};

class NodeBoolean final : public NodeParam<Boolean, GenApi::IBoolean, ParamBoolean>
{
public:
    using NodeParam::NodeParam;

    bool GetValue(int32_t *error = nullptr) const override;
    int32_t SetValue(bool value) override;
};

class NodeCommand final : public NodeParam<Command, GenApi::ICommand, ParamCommand>
{
public:
    using NodeParam::NodeParam;

    int32_t Execute() override;
    bool IsDone(int32_t *error = nullptr) const override;
};

class NodeString final : public NodeParam<String, GenApi::IString, ParamString>
{
public:
    using NodeParam::NodeParam;

    const char *GetValue(int32_t *error = nullptr) const override;
    int32_t SetValue(const char *value) override;
    int64_t GetMaxLength(int32_t *error = nullptr) const override;

private:
    mutable std::string m_text;
};

class NodeEnumEntry;

class NodeEnum final : public NodeParam<Enum, GenApi::IEnumeration, ParamEnum>
{
public:
    NodeEnum(ArrayState &array, GenApi::INode &node, GenApi::IEnumeration &value);
    ~NodeEnum() override;

    uint32_t GetEntryCount() const override { return static_cast<uint32_t>(m_entries.size()); }
    EnumEntry *GetEntry(uint32_t index) const override;
    int64_t GetIntValue(int32_t *error = nullptr) const override;
    int32_t SetIntValue(int64_t value) override;
    const char *GetSymbolicValue(int32_t *error = nullptr) const override;
    int32_t SetSymbolicValue(const char *symbolic) override;

private:
    std::vector<std::unique_ptr<NodeEnumEntry>> m_entries; ///< null for one without a value
    mutable std::string m_symbolic;
};

} // namespace OrvGenParam

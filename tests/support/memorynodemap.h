// SPDX-License-Identifier: MIT
#pragma once

#include <genapi/declarednodemap.h>
#include <genapi/nodes/booleannode.h>
#include <genapi/nodes/enumerationnode.h>
#include <genapi/nodes/floatnode.h>
#include <genapi/nodes/registernode.h>
#include <genapi/nodes/stringnode.h>

#include <algorithm>

namespace OrvGenApi {

/// Hooks and counters beyond the interface of a node with a value, to simulate a misbehaving
/// camera.
class MemoryAccess
{
public:
    virtual ~MemoryAccess() = default;

    /// Called before every access to the value; it may throw to make the access fail.
    void onRead(std::function<void()> hook) { m_beforeRead = std::move(hook); }
    void onWrite(std::function<void()> hook) { m_beforeWrite = std::move(hook); }

    /// How often the value was fetched or stored; accesses to the cache do not count.
    int reads() const { return m_reads; }
    int writes() const { return m_writes; }

protected:
    void countRead() const
    {
        ++m_reads;
        if (m_beforeRead)
            m_beforeRead();
    }
    void countWrite()
    {
        ++m_writes;
        if (m_beforeWrite)
            m_beforeWrite();
    }

private:
    std::function<void()> m_beforeRead;
    std::function<void()> m_beforeWrite;
    mutable int m_reads = 0;
    int m_writes = 0;
};

/// A node in memory. Its change functions act like changes made by the camera.
template<typename Base>
class MemoryNode : public DeclaredNode<Base>, public MemoryAccess
{
public:
    using DeclaredNode<Base>::DeclaredNode;

    /// Makes a change of `source` invalidate this node.
    void dependsOn(Node &source) { this->map().addDependency(source, *this); }
};

/// A memory node with a value. `Base` is the value node, `T` its type.
template<typename Base, typename T>
class MemoryValueNode : public MemoryNode<Base>
{
public:
    using MemoryNode<Base>::MemoryNode;

    /// Changes the value as the camera would: without checks, with callbacks.
    void change(const T &value)
    {
        keep(value);
        this->changed();
    }

    /// Fetches and stores the value by functions instead of keeping it. Without a `set`, writes
    /// have no effect.
    void bind(
        std::function<T()> get, std::function<void(const T &)> set = [](const T &) {})
    {
        m_get = std::move(get);
        m_set = std::move(set);
    }

protected:
    T fetch() const
    {
        this->countRead();
        return m_get ? m_get() : m_value;
    }
    void store(const T &value)
    {
        this->countWrite();
        keep(value);
    }

private:
    void keep(const T &value)
    {
        if (m_set)
            m_set(value);
        else
            m_value = value;
    }

    T m_value = T();
    std::function<T()> m_get;
    std::function<void(const T &)> m_set;
};

/// An integer or float node with limits.
template<typename Base, typename T>
class MemoryNumber : public MemoryValueNode<Base, T>
{
public:
    using MemoryValueNode<Base, T>::MemoryValueNode;

    /// The current value may violate the new limits.
    void setLimits(T min, T max)
    {
        m_min = min;
        m_max = max;
        this->changed();
    }
    void setIncrement(T increment)
    {
        m_inc = increment;
        this->changed();
    }
    void setValidValues(std::vector<T> values)
    {
        m_validValues = std::move(values);
        this->changed();
    }
    void setRepresentation(GenApi::ERepresentation value) { m_representation = value; }
    void setUnit(const std::string &unit) { m_unit = unit; }

    /// Computes the maximum by a function, unless a cache has it.
    void bindMax(std::function<T()> max) { m_boundMax = std::move(max); }

    GenApi::ERepresentation GetRepresentation() override { return m_representation; }

protected:
    GenICam::gcstring unit() const { return m_unit.c_str(); }
    T readValue() override { return this->fetch(); }
    void writeValue(T value) override { this->store(value); }
    T readMin() override { return m_min; }
    T readMax() override { return m_boundMax ? m_boundMax() : m_max; }
    std::optional<T> readInc() override { return m_inc; }
    std::vector<T> validValues() const override { return m_validValues; }

private:
    T m_min = std::is_integral<T>() ? std::numeric_limits<T>::min() : T(-1e300);
    T m_max = std::is_integral<T>() ? std::numeric_limits<T>::max() : T(1e300);
    std::function<T()> m_boundMax;
    std::optional<T> m_inc;
    std::vector<T> m_validValues;
    GenApi::ERepresentation m_representation = GenApi::PureNumber;
    std::string m_unit;
};

class MemoryInteger : public MemoryNumber<IntegerNode, int64_t>
{
public:
    using MemoryNumber::MemoryNumber;
    GenICam::gcstring GetUnit() override { return unit(); }
};

class MemoryFloat : public MemoryNumber<FloatNode, double>
{
public:
    using MemoryNumber::MemoryNumber;

    void setNotation(GenApi::EDisplayNotation notation, int64_t precision)
    {
        m_notation = notation;
        m_precision = precision;
    }

    GenICam::gcstring GetUnit() const override { return unit(); }
    GenApi::EDisplayNotation GetDisplayNotation() const override { return m_notation; }
    int64_t GetDisplayPrecision() const override { return m_precision; }

private:
    GenApi::EDisplayNotation m_notation = GenApi::fnAutomatic;
    int64_t m_precision = 6;
};

class MemoryBoolean : public MemoryValueNode<BooleanNode, bool>
{
public:
    using MemoryValueNode::MemoryValueNode;

protected:
    bool readValue() const override { return fetch(); }
    void writeValue(bool value) override { store(value); }
};

using MemoryEnumEntry = DeclaredNode<EnumEntryNode>;

class MemoryEnumeration : public MemoryValueNode<EnumerationNode, int64_t>
{
public:
    using MemoryValueNode::MemoryValueNode;

    /// The entry of that symbolic name, which must exist.
    MemoryEnumEntry &entry(const std::string &symbolic)
    {
        return dynamic_cast<MemoryEnumEntry &>(*GetEntryByName(symbolic.c_str()));
    }

protected:
    int64_t readValue() override { return fetch(); }
    void writeValue(int64_t value) override { store(value); }
};

class MemoryCommand : public MemoryNode<CommandNode>
{
public:
    using MemoryNode::MemoryNode;

    void onExecute(std::function<void()> action) { m_action = std::move(action); }

    /// The result of `IsDone()`; without such a function a command is done at once.
    void bindIsDone(std::function<bool()> isDone) { m_isDone = std::move(isDone); }

protected:
    void execute() override
    {
        countWrite();
        if (m_action)
            m_action();
    }
    bool readIsDone() override { return m_isDone ? m_isDone() : true; }

private:
    std::function<void()> m_action;
    std::function<bool()> m_isDone;
};

class MemoryString : public MemoryValueNode<StringNode, std::string>
{
public:
    using MemoryValueNode::MemoryValueNode;

    /// In bytes; 64 unless set.
    void setMaxLength(int64_t length) { m_maxLength = length; }

protected:
    std::string readValue() override { return fetch(); }
    void writeValue(const std::string &value) override { store(value); }
    int64_t readMaxLength() override { return m_maxLength; }

private:
    int64_t m_maxLength = 64;
};

class MemoryRegister : public MemoryValueNode<RegisterNode, std::vector<uint8_t>>
{
public:
    using MemoryValueNode::MemoryValueNode;

    void setAddress(int64_t address) { m_address = address; }
    int64_t GetAddress(bool = false) override { return m_address; }

protected:
    std::vector<uint8_t> readBytes() override { return fetch(); }
    void writeBytes(const std::vector<uint8_t> &bytes) override
    {
        std::vector<uint8_t> contents = fetch();
        std::copy(bytes.begin(), bytes.end(), contents.begin());
        store(contents);
    }
    int64_t readLength() override { return static_cast<int64_t>(fetch().size()); }

private:
    int64_t m_address = 0;
};

/// A node map with the values in memory, for tests of misbehaving cameras. Each `addX` adds a node
/// to a category like `add`.
class MemoryNodeMap : public DeclaredNodeMap
{
public:
    explicit MemoryNodeMap(const std::string &deviceName = "Memory") : DeclaredNodeMap(deviceName)
    {
    }

    MemoryInteger &addInteger(const std::string &name, int64_t value = 0,
                              const std::string &category = "Root")
    {
        return addValue<MemoryInteger>(name, value, category);
    }
    MemoryFloat &addFloat(const std::string &name, double value = 0,
                          const std::string &category = "Root")
    {
        return addValue<MemoryFloat>(name, value, category);
    }
    MemoryBoolean &addBoolean(const std::string &name, bool value = false,
                              const std::string &category = "Root")
    {
        return addValue<MemoryBoolean>(name, value, category);
    }
    MemoryString &addString(const std::string &name, const std::string &value = {},
                            const std::string &category = "Root")
    {
        return addValue<MemoryString>(name, value, category);
    }
    MemoryRegister &addRegister(const std::string &name, const std::vector<uint8_t> &bytes = {},
                                const std::string &category = "Root")
    {
        return addValue<MemoryRegister>(name, bytes, category);
    }
    MemoryCommand &addCommand(const std::string &name, std::function<void()> action = {},
                              const std::string &category = "Root")
    {
        auto &node = add<MemoryCommand>(name, category);
        node.onExecute(std::move(action));
        return node;
    }
    MemoryEnumeration &addEnumeration(const std::string &name,
                                      const std::vector<std::pair<std::string, int64_t>> &entries,
                                      int64_t value = 0, const std::string &category = "Root")
    {
        auto &node = add<MemoryEnumeration>(name, category);
        for (const auto &[symbolic, entryValue] : entries) {
            EnumEntryProperties properties;
            properties.symbolic = symbolic;
            properties.value = entryValue;
            auto &entry =
                add<MemoryEnumEntry>("EnumEntry_" + name + "_" + symbolic, "", properties);
            node.addEntry(entry);
            addDependency(entry, node);
        }
        node.change(value);
        return node;
    }

private:
    template<typename T, typename Value>
    T &addValue(const std::string &name, const Value &value, const std::string &category)
    {
        auto &node = add<T>(name, category);
        node.change(value);
        return node;
    }
};

} // namespace OrvGenApi

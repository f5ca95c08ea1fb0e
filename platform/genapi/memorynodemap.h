// SPDX-License-Identifier: MIT
#pragma once

#include "nodes/booleannode.h"
#include "nodes/categorynode.h"
#include "nodes/commandnode.h"
#include "nodes/enumerationnode.h"
#include "nodes/floatnode.h"
#include "nodes/integernode.h"
#include "nodes/nodemapbase.h"
#include "nodes/registernode.h"
#include "nodes/stringnode.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace OrvGenApi {

/// What every node of a `MemoryNodeMap` can do beyond its interface: play a camera that is not
/// always well-behaved. The changes made here count as changes made by the camera: they invalidate
/// dependents and call callbacks.
template<typename Base>
class MemoryNode : public Base
{
public:
    using Base::Base;

    void setAccessMode(GenApi::EAccessMode mode)
    {
        m_access = mode;
        changed();
    }

    /// Called before every access to the value; it may throw to make the access fail.
    void onRead(std::function<void()> hook) { m_beforeRead = std::move(hook); }
    void onWrite(std::function<void()> hook) { m_beforeWrite = std::move(hook); }

    /// Makes a change of `source` invalidate this node.
    void dependsOn(Node &source) { this->map().addDependency(source, *this); }

    /// Makes this node one of the selectors of `feature`.
    void select(Node &feature) { this->map().addSelection(*this, feature); }

    /// Tells clients that the node has changed.
    void changed() { this->map().notifyChanged({this}); }

    /// How often the value was fetched or stored, caches left out of account.
    int reads() const { return m_reads; }
    int writes() const { return m_writes; }

protected:
    GenApi::EAccessMode readAccessMode() const override { return m_access; }

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
    GenApi::EAccessMode m_access = GenApi::RW;
    std::function<void()> m_beforeRead;
    std::function<void()> m_beforeWrite;
    mutable int m_reads = 0;
    int m_writes = 0;
};

/// Where a value of type `T` is kept: here, or wherever a pair of functions gets it from and
/// brings it to.
template<typename T>
class MemoryValue
{
public:
    explicit MemoryValue(T value = T()) : m_value(std::move(value)) {}

    T get() const { return m_get ? m_get() : m_value; }
    void set(const T &value)
    {
        if (m_set)
            m_set(value);
        else
            m_value = value;
    }
    void bind(std::function<T()> get, std::function<void(const T &)> set)
    {
        m_get = std::move(get);
        m_set = std::move(set);
    }

private:
    T m_value;
    std::function<T()> m_get;
    std::function<void(const T &)> m_set;
};

/// The value half of a memory node. `Base` is the value node, `T` its type.
template<typename Base, typename T>
class MemoryValueNode : public MemoryNode<Base>
{
public:
    using MemoryNode<Base>::MemoryNode;

    /// Changes the value as the camera would: unchecked, with callbacks.
    void change(const T &value)
    {
        m_value.set(value);
        this->changed();
    }

    /// Has the value fetched and stored by functions instead of kept. Without a `set`, writes
    /// only go into a value that nobody sees.
    void bind(
        std::function<T()> get, std::function<void(const T &)> set = [](const T &) {})
    {
        m_value.bind(std::move(get), std::move(set));
    }

protected:
    T fetch() const
    {
        this->countRead();
        return m_value.get();
    }
    void store(const T &value)
    {
        this->countWrite();
        m_value.set(value);
    }

private:
    MemoryValue<T> m_value;
};

class MemoryInteger : public MemoryValueNode<IntegerNode, int64_t>
{
public:
    using MemoryValueNode::MemoryValueNode;

    /// No increment unless one is given. May break the current value.
    void setLimits(int64_t min, int64_t max);
    void setIncrement(int64_t increment);
    void setValidValues(std::vector<int64_t> values);
    void setRepresentation(GenApi::ERepresentation representation);
    void setUnit(const std::string &unit) { m_unit = unit; }

    /// Has the maximum computed at each request that no cache answers.
    void bindMax(std::function<int64_t()> max) { m_boundMax = std::move(max); }

    GenApi::ERepresentation GetRepresentation() override { return m_representation; }
    GenICam::gcstring GetUnit() override { return m_unit.c_str(); }

protected:
    int64_t readValue() override { return fetch(); }
    void writeValue(int64_t value) override { store(value); }
    int64_t readMin() override { return m_min; }
    int64_t readMax() override { return m_boundMax ? m_boundMax() : m_max; }
    std::optional<int64_t> readInc() override { return m_inc; }
    std::vector<int64_t> validValues() const override { return m_validValues; }

private:
    int64_t m_min = INT64_MIN;
    int64_t m_max = INT64_MAX;
    std::function<int64_t()> m_boundMax;
    std::optional<int64_t> m_inc;
    std::vector<int64_t> m_validValues;
    GenApi::ERepresentation m_representation = GenApi::PureNumber;
    std::string m_unit;
};

class MemoryFloat : public MemoryValueNode<FloatNode, double>
{
public:
    using MemoryValueNode::MemoryValueNode;

    void setLimits(double min, double max);
    void setIncrement(double increment);
    void setValidValues(std::vector<double> values);
    void setRepresentation(GenApi::ERepresentation representation);
    void setUnit(const std::string &unit) { m_unit = unit; }
    void setNotation(GenApi::EDisplayNotation notation, int64_t precision);

    GenApi::ERepresentation GetRepresentation() override { return m_representation; }
    GenICam::gcstring GetUnit() const override { return m_unit.c_str(); }
    GenApi::EDisplayNotation GetDisplayNotation() const override { return m_notation; }
    int64_t GetDisplayPrecision() const override { return m_precision; }

protected:
    double readValue() override { return fetch(); }
    void writeValue(double value) override { store(value); }
    double readMin() override { return m_min; }
    double readMax() override { return m_max; }
    std::optional<double> readInc() override { return m_inc; }
    std::vector<double> validValues() const override { return m_validValues; }

private:
    double m_min = -1e300;
    double m_max = 1e300;
    std::optional<double> m_inc;
    std::vector<double> m_validValues;
    GenApi::ERepresentation m_representation = GenApi::PureNumber;
    GenApi::EDisplayNotation m_notation = GenApi::fnAutomatic;
    int64_t m_precision = 6;
    std::string m_unit;
};

class MemoryBoolean : public MemoryValueNode<BooleanNode, bool>
{
public:
    using MemoryValueNode::MemoryValueNode;

protected:
    bool readValue() const override { return fetch(); }
    void writeValue(bool value) override { store(value); }
};

class MemoryEnumEntry : public MemoryNode<EnumEntryNode>
{
public:
    using MemoryNode::MemoryNode;
};

class MemoryEnumeration : public MemoryValueNode<EnumerationNode, int64_t>
{
public:
    using MemoryValueNode::MemoryValueNode;

    /// The entry of that symbolic name, which must exist.
    MemoryEnumEntry &entry(const std::string &symbolic);

protected:
    int64_t readValue() override { return fetch(); }
    void writeValue(int64_t value) override { store(value); }
};

class MemoryCommand : public MemoryNode<CommandNode>
{
public:
    using MemoryNode::MemoryNode;

    void onExecute(std::function<void()> action) { m_action = std::move(action); }

    /// Answers `IsDone`; a command is done at once unless one is set.
    void bindIsDone(std::function<bool()> isDone) { m_isDone = std::move(isDone); }

protected:
    void execute() override;
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
    int64_t GetAddress(bool verify = false) override;

protected:
    std::vector<uint8_t> readBytes() override { return fetch(); }
    void writeBytes(const std::vector<uint8_t> &bytes) override;
    int64_t readLength() override { return static_cast<int64_t>(fetch().size()); }

private:
    int64_t m_address = 0;
};

class MemoryCategory : public MemoryNode<CategoryNode>
{
public:
    using MemoryNode::MemoryNode;

protected:
    GenApi::EAccessMode readAccessMode() const override;
};

/// A complete node map whose nodes are declared in C++: for the parameters of interfaces, which
/// have no description, and for tests of what a good camera never does.
///
/// Declare the nodes first, then hand the map to clients. Every `add` throws
/// `LogicalErrorException` when the name is taken. `category` names the category that lists the
/// new node at its end; it is made, below "Root", when it does not exist. An empty `category`
/// lists the node nowhere. Nodes are readable and writable unless set otherwise; what else a
/// description would say is set through `properties()`.
class MemoryNodeMap : public NodeMapBase
{
public:
    /// The map has an empty "Root" category.
    explicit MemoryNodeMap(const std::string &deviceName = "Memory");

    MemoryCategory &root() { return *m_root; }

    /// The category of that name, made below "Root" when it does not exist.
    MemoryCategory &category(const std::string &name);
    MemoryCategory &addCategory(const std::string &name, const std::string &parent = "Root");
    MemoryInteger &addInteger(const std::string &name, int64_t value = 0,
                              const std::string &category = "Root");
    MemoryFloat &addFloat(const std::string &name, double value = 0,
                          const std::string &category = "Root");
    MemoryBoolean &addBoolean(const std::string &name, bool value = false,
                              const std::string &category = "Root");
    MemoryEnumeration &addEnumeration(const std::string &name,
                                      const std::vector<std::pair<std::string, int64_t>> &entries,
                                      int64_t value = 0, const std::string &category = "Root");
    MemoryCommand &addCommand(const std::string &name, std::function<void()> action = {},
                              const std::string &category = "Root");
    MemoryString &addString(const std::string &name, const std::string &value = {},
                            const std::string &category = "Root");
    MemoryRegister &addRegister(const std::string &name, const std::vector<uint8_t> &bytes = {},
                                const std::string &category = "Root");

private:
    template<typename T, typename... Args>
    T &add(const std::string &name, const std::string &category, Args &&...args);

    MemoryCategory *m_root = nullptr;
};

} // namespace OrvGenApi

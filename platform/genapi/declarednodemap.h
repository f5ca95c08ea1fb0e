// SPDX-License-Identifier: MIT
#pragma once

#include "nodes/categorynode.h"
#include "nodes/commandnode.h"
#include "nodes/integernode.h"
#include "nodes/nodemapbase.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace OrvGenApi {

/// Common functions of the nodes of a `DeclaredNodeMap`. Changes through them invalidate dependents
/// and call callbacks.
template<typename Base>
class DeclaredNode : public Base
{
public:
    using Base::Base;

    void setAccessMode(GenApi::EAccessMode mode)
    {
        m_access = mode;
        changed();
    }

    /// Makes this node one of the selectors of `feature`.
    void select(Node &feature) { this->map().addSelection(*this, feature); }

    /// Notifies clients that the node has changed.
    void changed() { this->map().notifyChanged({this}); }

protected:
    GenApi::EAccessMode readAccessMode() const override { return m_access; }

private:
    GenApi::EAccessMode m_access = GenApi::RW;
};

/// An integer with a function to read and one to write its value.
class DeclaredInteger : public DeclaredNode<IntegerNode>
{
public:
    using DeclaredNode::DeclaredNode;

    /// Without a `set`, writes have no effect.
    void bind(
        std::function<int64_t()> get, std::function<void(int64_t)> set = [](int64_t) {});

    /// The current value may become invalid.
    void setLimits(int64_t min, int64_t max);
    void setRepresentation(GenApi::ERepresentation representation);

    GenApi::ERepresentation GetRepresentation() override { return m_representation; }
    GenICam::gcstring GetUnit() override { return {}; }

protected:
    int64_t readValue() override { return m_get(); }
    void writeValue(int64_t value) override { m_set(value); }
    int64_t readMin() override { return m_min; }
    int64_t readMax() override { return m_max; }
    std::optional<int64_t> readInc() override { return {}; }
    std::vector<int64_t> validValues() const override { return {}; }

private:
    std::function<int64_t()> m_get;
    std::function<void(int64_t)> m_set;
    int64_t m_min = INT64_MIN;
    int64_t m_max = INT64_MAX;
    GenApi::ERepresentation m_representation = GenApi::PureNumber;
};

/// A command that completes immediately.
class DeclaredCommand : public DeclaredNode<CommandNode>
{
public:
    using DeclaredNode::DeclaredNode;

    void onExecute(std::function<void()> action) { m_action = std::move(action); }

protected:
    void execute() override;
    bool readIsDone() override { return true; }

private:
    std::function<void()> m_action;
};

class DeclaredCategory : public DeclaredNode<CategoryNode>
{
public:
    using DeclaredNode::DeclaredNode;

protected:
    GenApi::EAccessMode readAccessMode() const override { return GenApi::RO; }
};

/// A complete node map whose nodes are declared in C++: for the parameters of interfaces, which
/// have no description.
///
/// Declare the nodes before clients get the map. Nodes are readable and writable unless set
/// otherwise; other properties of a description are set through `properties()`.
class DeclaredNodeMap : public NodeMapBase
{
public:
    /// The map has an empty "Root" category.
    explicit DeclaredNodeMap(const std::string &deviceName);

    DeclaredCategory &root() { return *m_root; }

    /// The category of that name, which is created below "Root" if it does not exist.
    DeclaredCategory &category(const std::string &name);
    DeclaredCategory &addCategory(const std::string &name, const std::string &parent = "Root");

    /// Adds a node of the class `T` at the end of that category, which is created if it does not
    /// exist. With an empty `category` the node is not listed. Throws `LogicalErrorException` when
    /// the name is in use.
    template<typename T, typename... Args>
    T &add(const std::string &name, const std::string &category, Args &&...args);

private:
    DeclaredCategory *m_root = nullptr;
};

template<typename T, typename... Args>
T &DeclaredNodeMap::add(const std::string &name, const std::string &categoryName, Args &&...args)
{
    NodeProperties properties;
    properties.name = name;
    auto owned = std::make_unique<T>(*this, properties, std::forward<Args>(args)...);
    T &node = *owned;
    adopt(std::move(owned));
    if (!categoryName.empty())
        category(categoryName).addFeature(node);
    return node;
}

} // namespace OrvGenApi

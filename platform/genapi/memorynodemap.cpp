// SPDX-License-Identifier: MIT
#include "memorynodemap.h"

#include <algorithm>

using namespace GenApi;

namespace OrvGenApi {

namespace {

NodeProperties named(const std::string &name)
{
    NodeProperties properties;
    properties.name = name;
    return properties;
}

} // namespace

void MemoryInteger::setLimits(int64_t min, int64_t max)
{
    m_min = min;
    m_max = max;
    changed();
}

void MemoryInteger::setIncrement(int64_t increment)
{
    m_inc = increment;
    changed();
}

void MemoryInteger::setValidValues(std::vector<int64_t> values)
{
    m_validValues = std::move(values);
    changed();
}

void MemoryInteger::setRepresentation(ERepresentation representation)
{
    m_representation = representation;
}

void MemoryFloat::setLimits(double min, double max)
{
    m_min = min;
    m_max = max;
    changed();
}

void MemoryFloat::setIncrement(double increment)
{
    m_inc = increment;
    changed();
}

void MemoryFloat::setValidValues(std::vector<double> values)
{
    m_validValues = std::move(values);
    changed();
}

void MemoryFloat::setRepresentation(ERepresentation representation)
{
    m_representation = representation;
}

void MemoryFloat::setNotation(EDisplayNotation notation, int64_t precision)
{
    m_notation = notation;
    m_precision = precision;
}

MemoryEnumEntry &MemoryEnumeration::entry(const std::string &symbolic)
{
    auto *found = dynamic_cast<MemoryEnumEntry *>(GetEntryByName(symbolic.c_str()));
    if (!found)
        throw GenICam::LogicalErrorException(
            ("'" + name() + "' has no entry '" + symbolic + "'").c_str(), __FILE__, __LINE__);
    return *found;
}

void MemoryCommand::execute()
{
    countWrite();
    if (m_action)
        m_action();
}

int64_t MemoryRegister::GetAddress(bool)
{
    return m_address;
}

void MemoryRegister::writeBytes(const std::vector<uint8_t> &bytes)
{
    std::vector<uint8_t> contents = fetch();
    std::copy(bytes.begin(), bytes.end(), contents.begin());
    store(contents);
}

EAccessMode MemoryCategory::readAccessMode() const
{
    return std::min(MemoryNode::readAccessMode(), RO);
}

MemoryNodeMap::MemoryNodeMap(const std::string &deviceName)
    : NodeMapBase(deviceName), m_root(&add<MemoryCategory>("Root", ""))
{
}

template<typename T, typename... Args>
T &MemoryNodeMap::add(const std::string &name, const std::string &categoryName, Args &&...args)
{
    auto owned = std::make_unique<T>(*this, named(name), std::forward<Args>(args)...);
    T &node = *owned;
    adopt(std::move(owned));
    if (!categoryName.empty())
        category(categoryName).addFeature(node);
    return node;
}

MemoryCategory &MemoryNodeMap::category(const std::string &name)
{
    if (auto *found = dynamic_cast<MemoryCategory *>(node(name)))
        return *found;
    return addCategory(name);
}

MemoryCategory &MemoryNodeMap::addCategory(const std::string &name, const std::string &parent)
{
    return add<MemoryCategory>(name, parent);
}

MemoryInteger &MemoryNodeMap::addInteger(const std::string &name, int64_t value,
                                         const std::string &category)
{
    auto &node = add<MemoryInteger>(name, category);
    node.change(value);
    return node;
}

MemoryFloat &MemoryNodeMap::addFloat(const std::string &name, double value,
                                     const std::string &category)
{
    auto &node = add<MemoryFloat>(name, category);
    node.change(value);
    return node;
}

MemoryBoolean &MemoryNodeMap::addBoolean(const std::string &name, bool value,
                                         const std::string &category)
{
    auto &node = add<MemoryBoolean>(name, category);
    node.change(value);
    return node;
}

MemoryEnumeration &
MemoryNodeMap::addEnumeration(const std::string &name,
                              const std::vector<std::pair<std::string, int64_t>> &entries,
                              int64_t value, const std::string &category)
{
    auto &node = add<MemoryEnumeration>(name, category);
    for (const auto &[symbolic, entryValue] : entries) {
        EnumEntryProperties properties;
        properties.symbolic = symbolic;
        properties.value = entryValue;
        auto &entry = add<MemoryEnumEntry>("EnumEntry_" + name + "_" + symbolic, "", properties);
        node.addEntry(entry);
        addDependency(entry, node);
    }
    node.change(value);
    return node;
}

MemoryCommand &MemoryNodeMap::addCommand(const std::string &name, std::function<void()> action,
                                         const std::string &category)
{
    auto &node = add<MemoryCommand>(name, category);
    node.onExecute(std::move(action));
    return node;
}

MemoryString &MemoryNodeMap::addString(const std::string &name, const std::string &value,
                                       const std::string &category)
{
    auto &node = add<MemoryString>(name, category);
    node.change(value);
    return node;
}

MemoryRegister &MemoryNodeMap::addRegister(const std::string &name,
                                           const std::vector<uint8_t> &bytes,
                                           const std::string &category)
{
    auto &node = add<MemoryRegister>(name, category);
    node.change(bytes);
    return node;
}

} // namespace OrvGenApi

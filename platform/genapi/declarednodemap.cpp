// SPDX-License-Identifier: MIT
#include "declarednodemap.h"

using namespace GenApi;

namespace OrvGenApi {

void DeclaredInteger::bind(std::function<int64_t()> get, std::function<void(int64_t)> set)
{
    m_get = std::move(get);
    m_set = std::move(set);
}

void DeclaredInteger::setLimits(int64_t min, int64_t max)
{
    m_min = min;
    m_max = max;
    changed();
}

void DeclaredInteger::setRepresentation(ERepresentation representation)
{
    m_representation = representation;
}

void DeclaredCommand::execute()
{
    if (m_action)
        m_action();
}

DeclaredNodeMap::DeclaredNodeMap(const std::string &deviceName)
    : NodeMapBase(deviceName), m_root(&add<DeclaredCategory>("Root", ""))
{
}

DeclaredCategory &DeclaredNodeMap::category(const std::string &name)
{
    if (auto *found = dynamic_cast<DeclaredCategory *>(node(name)))
        return *found;
    return addCategory(name);
}

DeclaredCategory &DeclaredNodeMap::addCategory(const std::string &name, const std::string &parent)
{
    return add<DeclaredCategory>(name, parent);
}

} // namespace OrvGenApi

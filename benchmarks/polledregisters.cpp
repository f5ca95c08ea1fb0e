// SPDX-License-Identifier: MIT
#include "polledregisters.h"

#include <description/description.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <string_view>
#include <vector>

using OrvDescription::Description;
using OrvDescription::DescriptionNode;

namespace {

bool isOfValue(std::string_view tag)
{
    static const std::set<std::string_view> tags{"pValue", "pVariable", "pIndex", "pValueIndexed",
                                                 "pValueDefault"};
    return tags.count(tag) != 0;
}

class Polled
{
public:
    explicit Polled(const Description &description)
    {
        for (const DescriptionNode &node : description.nodes())
            m_nodes[node.name] = &node;
    }

    /// The registers of the node's value are polled with it.
    void add(const DescriptionNode &node, int period)
    {
        std::vector<const DescriptionNode *> pending{&node};
        std::set<const DescriptionNode *> seen;
        while (!pending.empty()) {
            const DescriptionNode *next = pending.back();
            pending.pop_back();
            if (!next || !seen.insert(next).second)
                continue;
            addRegister(*next, period);
            for (const auto &property : next->properties) {
                if (isOfValue(property.tag))
                    pending.push_back(find(property.text));
            }
        }
    }

    std::map<uint32_t, int> periods;

private:
    const DescriptionNode *find(std::string_view name) const
    {
        const auto found = m_nodes.find(name);
        return found == m_nodes.end() ? nullptr : found->second;
    }

    void addRegister(const DescriptionNode &node, int period)
    {
        uint32_t address = 0;
        bool hasAddress = false;
        for (const auto &property : node.properties) {
            if (property.tag == "pAddress" || property.tag == "IntSwissKnife")
                return;
            if (property.tag != "Address")
                continue;
            hasAddress = true;
            const std::string text(property.text);
            address += static_cast<uint32_t>(std::strtoull(text.c_str(), nullptr, 0));
        }
        if (!hasAddress)
            return;
        const auto known = periods.emplace(address, period).first;
        known->second = std::min(known->second, period);
    }

    std::map<std::string_view, const DescriptionNode *> m_nodes;
};

} // namespace

std::map<uint32_t, int> polledRegisters(const std::string &description)
{
    const auto parsed = Description::shared(description, "description");
    Polled polled(*parsed);
    for (const DescriptionNode &node : parsed->nodes()) {
        const int period = std::atoi(std::string(node.text("PollingTime", "-1")).c_str());
        if (period > 0)
            polled.add(node, period);
    }
    return polled.periods;
}

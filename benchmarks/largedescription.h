// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// A description of a given number of features of all types and levels, spread over categories.
/// Each is a register; a quarter of them, the integers, depend on the feature "Selector".
class LargeDescription
{
public:
    LargeDescription(int features, int categories);

    std::string text() const;

private:
    void addFeature(int i);
    static std::string reg(const std::string &type, const std::string &name, int i,
                           const std::string &more = {});

    const int m_features;
    std::vector<std::string> m_categories; ///< their contents
    std::string m_selected;
    std::string m_nodes;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// A description with a given number of features of all types and levels, distributed over
/// categories. Each feature is a register; the integers, a quarter of all, depend on the feature
/// "Selector".
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

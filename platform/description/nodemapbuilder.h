// SPDX-License-Identifier: MIT
#pragma once

#include "describednodes.h"
#include "description.h"
#include "nodemap.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace OrvDescription {

/// Makes the nodes of a node map out of its description, in two passes: first all nodes, then what
/// they have to do with each other.
class NodeMapBuilder
{
public:
    NodeMapBuilder(NodeMap &map, const Description &description);

    /// Throws `RuntimeException` when there is no root category.
    void build(const std::string &source);

private:
    struct Item
    {
        const DescriptionNode *description = nullptr;
        OrvGenApi::Node *node = nullptr;
        NodeLinks *links = nullptr;
    };

    NodeLinks &newLinks();
    void makeNode(const DescriptionNode &description);
    std::unique_ptr<OrvGenApi::Node> newNode(const DescriptionNode &description, NodeLinks &links);
    ArvGcNode *engineNode(const DescriptionNode &description) const;

    OrvGenApi::Node *referenced(Item &item, const std::string &name);
    OrvGenApi::Node *referenced(Item &item, const char *tag);
    std::vector<OrvGenApi::Node *> referencedAll(Item &item, const char *tag);

    void connect(Item &item);
    void connectRegister(Item &item);
    void connectNumber(Item &item);
    void connectEntry(Item &item);
    void connectCategory(Item &item);
    void connectDependencies(Item &item);
    void connectPredicates(Item &item);
    std::unique_ptr<NumberSource> newSource(Item &item);
    std::unique_ptr<NumberSource> newIndexedSource(Item &item);
    std::unique_ptr<NumberSource> newFormulaSource(Item &item);
    std::unique_ptr<NumberSource> newConverterSource(Item &item);
    std::unique_ptr<Formula> newFormula(Item &item, const char *tag, const char *input);
    template<typename Described, typename T>
    void connectLimits(Item &item, T (*parse)(const std::string &));

    void markCircularNodes();
    bool isInCircle(Item &item, std::vector<int> &states);
    void breakCategoryCircles();
    void breakCategoryCircle(const DescriptionNode &category, std::vector<int> &states);
    void spreadUnusable();
    void finish(Item &item);
    std::vector<OrvGenApi::Node *> registersBehind(const std::vector<OrvGenApi::Node *> &nodes);
    bool readsUncachable(const std::vector<OrvGenApi::Node *> &nodes);
    Item *itemOf(const OrvGenApi::Node *node);
    static const std::vector<DescriptionProperty> &propertiesOfItem(const Item &item);

    NodeMap &m_map;
    const Description &m_description;
    std::vector<Item> m_items;
    std::unordered_map<const OrvGenApi::Node *, std::size_t> m_indexOf;
    std::unordered_map<std::string, const DescriptionNode *> m_described;
    std::vector<std::pair<std::string, std::string>> m_droppedFeatures; ///< category, feature
};

} // namespace OrvDescription

// SPDX-License-Identifier: MIT
#pragma once

#include "describednodes.h"
#include "description.h"
#include "nodemap.h"
#include "referencegraph.h"

#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace OrvDescription {

/// Creates the nodes of a node map from its description, in two passes: first all nodes, then their
/// relations.
class NodeMapBuilder
{
public:
    explicit NodeMapBuilder(NodeMap &map);

    void build();

private:
    using Properties = std::vector<DescriptionProperty>;

    NodeLinks &newLinks(const DescriptionNode *description);
    void makeNode(const DescriptionNode &description);
    std::unique_ptr<OrvGenApi::Node> newNode(const DescriptionNode &description, NodeLinks &links);
    void adopt(NodeLinks &links, std::unique_ptr<OrvGenApi::Node> node);
    NodeLinks *linksOf(std::string_view name) const;

    // A reference to a missing node makes the referring node unusable.
    NodeLinks *referenced(NodeLinks &links, std::string_view name);
    NodeLinks *referencedBy(NodeLinks &links, std::string_view tag);
    OrvGenApi::Node *nodeReferencedBy(NodeLinks &links, std::string_view tag);

    void connect(NodeLinks &links);
    void connectRegister(NodeLinks &links);
    void connectPlace(NodeLinks &links, RegisterPlace &place);
    void connectIndex(NodeLinks &links, RegisterPlace &place, const DescriptionProperty &property);
    void connectNumber(NodeLinks &links);
    void connectString(NodeLinks &links, DescribedString &node);
    void connectEntry(NodeLinks &links);
    void connectCategory(NodeLinks &links);
    void connectDependencies(NodeLinks &links, const Properties &properties);
    void connectPredicates(NodeLinks &links);
    std::unique_ptr<NumberSource> newSource(NodeLinks &links);
    std::unique_ptr<NumberSource> newReferenceSource(NodeLinks &links);
    std::unique_ptr<NumberSource> newIndexedSource(NodeLinks &links);
    std::unique_ptr<NumberSource> newFormulaSource(NodeLinks &links);
    std::unique_ptr<NumberSource> newConverterSource(NodeLinks &links);
    std::vector<OrvGenApi::Node *> connectVariables(NodeLinks &links, const Properties &properties);
    std::unique_ptr<NodeFormula> newFormula(NodeLinks &links, std::string_view text,
                                            const Properties &properties,
                                            const std::vector<OrvGenApi::Node *> &variables,
                                            std::string_view input = {});
    template<typename Described, typename T>
    void connectLimits(NodeLinks &links, Described &node, T (*parse)(std::string_view));

    struct CategoryState;
    void breakCategoryCycles();
    void breakCategoryCycles(const NodeLinks &first, std::vector<CategoryState> &states);

    /// A formula uses a limit of a node.
    struct LimitRead
    {
        NodeLinks *reader;
        NodeLinks *limited;
        std::string_view which;
    };

    void addLimitsRead(ReferenceGraph &graph, const LimitRead &read) const;

    NodeMap &m_map;
    const Description &m_description;
    std::unordered_map<std::string_view, NodeLinks *> m_byName;
    std::vector<LimitRead> m_limitsRead;
    std::set<std::pair<std::string_view, std::string_view>>
        m_droppedFeatures; ///< category and feature
};

} // namespace OrvDescription

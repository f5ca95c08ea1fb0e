// SPDX-License-Identifier: MIT
#pragma once

#include "registeraccess.h"

#include <genapi/nodes/node.h>

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace OrvDescription {

struct DescriptionNode;

/// The relations of a described node to other nodes. The node map sets them after it has created
/// all nodes.
struct NodeLinks
{
    OrvGenApi::Node *node = nullptr;
    const DescriptionNode *description = nullptr; ///< null for a node without a description
    std::size_t index = 0;                        ///< in the node map

    NodeLinks *isImplemented = nullptr;
    NodeLinks *isAvailable = nullptr;
    NodeLinks *isLocked = nullptr;
    GenApi::EAccessMode imposedAccess = GenApi::RW;

    /// The description of the node is unusable: it has a reference to a missing node, a cyclic one,
    /// or one to data that only images contain.
    bool isUnusable = false;

    bool isValueCachable = true;
    bool areLimitsCachable = true;
    bool isAccessCachable = true;

    std::vector<NodeLinks *> valueChildren;   ///< read for the value
    std::vector<NodeLinks *> limitChildren;   ///< read for limits and increment
    std::vector<NodeLinks *> writtenChildren; ///< written with the value

    /// The register node itself, or null.
    std::unique_ptr<RegisterAccess> reg;

    /// The predicates that exist, of the three possible ones.
    std::vector<NodeLinks *> predicates() const;

    /// The node and all nodes that are written with it.
    std::vector<OrvGenApi::Node *> written();

    /// The node and the registers of its value.
    std::vector<OrvGenApi::Node *> terminals();

    /// The text of an element of the description.
    GenICam::gcstring text(std::string_view tag) const;
};

/// A described node: access mode and neighbours. `Base` is the value node.
template<typename Base>
class DescribedNode : public Base
{
public:
    template<typename... Args>
    DescribedNode(NodeLinks &links, Args &&...args)
        : Base(std::forward<Args>(args)...), m_links(links)
    {
    }

    GenICam::gcstring GetToolTip() const override { return m_links.text("ToolTip"); }
    GenICam::gcstring GetDescription() const override { return m_links.text("Description"); }
    GenICam::gcstring GetDisplayName() const override { return m_links.text("DisplayName"); }
    GenICam::gcstring GetEventID() const override { return m_links.text("EventID"); }
    bool IsCachable() const override { return m_links.isValueCachable; }
    GenApi::ECachingMode GetCachingMode() const override
    {
        return m_links.isValueCachable ? Base::GetCachingMode() : GenApi::NoCache;
    }
    std::vector<OrvGenApi::Node *> writtenNodes() override { return m_links.written(); }
    std::vector<OrvGenApi::Node *> terminalNodes() override { return m_links.terminals(); }
    void dropRegister() override
    {
        if (m_links.reg)
            m_links.reg->markStale();
    }

protected:
    NodeLinks &links() const { return m_links; }

    /// The access mode before availability and locks are applied.
    virtual GenApi::EAccessMode ownAccessMode() const { return GenApi::RO; }

    GenApi::EAccessMode readAccessMode() const override;
    GenApi::EAccessMode readUnlockedAccessMode() const override;
    bool accessIsCachable() const override { return m_links.isAccessCachable; }
    bool valueIsCachable() const override { return m_links.isValueCachable; }
    bool limitsAreCachable() const override { return m_links.areLimitsCachable; }
    void collectChildren(std::vector<OrvGenApi::Node *> &children,
                         GenApi::ELinkType linkType) const override;

private:
    NodeLinks &m_links;
};

/// `ownMode()` restricted by the availability.
GenApi::EAccessMode unlockedAccessMode(const NodeLinks &links,
                                       const std::function<GenApi::EAccessMode()> &ownMode);

/// The result of that, restricted by locks.
GenApi::EAccessMode restrictedAccessMode(const NodeLinks &links,
                                         const std::function<GenApi::EAccessMode()> &ownMode);

/// Appends the neighbours in `links`.
void appendChildren(NodeLinks &links, GenApi::ELinkType linkType,
                    std::vector<OrvGenApi::Node *> &children);

template<typename Base>
GenApi::EAccessMode DescribedNode<Base>::readAccessMode() const
{
    return restrictedAccessMode(m_links, [this] { return ownAccessMode(); });
}

template<typename Base>
GenApi::EAccessMode DescribedNode<Base>::readUnlockedAccessMode() const
{
    return unlockedAccessMode(m_links, [this] { return ownAccessMode(); });
}

template<typename Base>
void DescribedNode<Base>::collectChildren(std::vector<OrvGenApi::Node *> &children,
                                          GenApi::ELinkType linkType) const
{
    Base::collectChildren(children, linkType);
    appendChildren(m_links, linkType, children);
}

} // namespace OrvDescription

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

/// What a node of a description has to do with other nodes, as the node map works it out after all
/// nodes have been made.
struct NodeLinks
{
    OrvGenApi::Node *node = nullptr;
    const DescriptionNode *description = nullptr; ///< null for what is described nowhere
    std::size_t index = 0;                        ///< among all

    NodeLinks *isImplemented = nullptr;
    NodeLinks *isAvailable = nullptr;
    NodeLinks *isLocked = nullptr;
    GenApi::EAccessMode imposedAccess = GenApi::RW;

    /// The description makes no sense here: a reference that leads nowhere or in a circle, or to
    /// data that come with images only.
    bool isUnusable = false;

    bool isValueCachable = true;
    bool areLimitsCachable = true;
    bool isAccessCachable = true;

    std::vector<NodeLinks *> valueChildren;   ///< read to know the value
    std::vector<NodeLinks *> limitChildren;   ///< read to know limits and increment
    std::vector<NodeLinks *> writtenChildren; ///< written with the value

    /// The register that the node is, or null.
    std::unique_ptr<RegisterAccess> reg;

    /// Those of the three that there are.
    std::vector<NodeLinks *> predicates() const;

    /// The node and all that are written with it.
    std::vector<OrvGenApi::Node *> written();

    /// The node and the registers that its value comes from.
    std::vector<OrvGenApi::Node *> terminals();

    /// The text of an element of the description.
    GenICam::gcstring text(std::string_view tag) const;
};

/// A node of a description: access mode and neighbours. `Base` is the value node.
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

    /// The access mode before availability and locks are looked at.
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

/// The access mode that availability leaves of `ownMode()`.
GenApi::EAccessMode unlockedAccessMode(const NodeLinks &links,
                                       const std::function<GenApi::EAccessMode()> &ownMode);

/// The one that locks leave of that.
GenApi::EAccessMode restrictedAccessMode(const NodeLinks &links,
                                         const std::function<GenApi::EAccessMode()> &ownMode);

/// Appends the neighbours that `links` knows.
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

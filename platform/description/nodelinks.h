// SPDX-License-Identifier: MIT
#pragma once

#include "registeraccess.h"

#include <genapi/nodes/node.h>

#include <functional>
#include <memory>
#include <vector>

namespace OrvDescription {

/// What a node of a description has to do with other nodes, as the node map works it out after all
/// nodes have been made.
struct NodeLinks
{
    OrvGenApi::Node *isImplemented = nullptr;
    OrvGenApi::Node *isAvailable = nullptr;
    OrvGenApi::Node *isLocked = nullptr;
    GenApi::EAccessMode imposedAccess = GenApi::RW;

    std::vector<OrvGenApi::Node *> valueChildren;   ///< read to know the value
    std::vector<OrvGenApi::Node *> limitChildren;   ///< read to know limits and increment
    std::vector<OrvGenApi::Node *> writtenChildren; ///< written with the value

    /// The register that the node is, or null.
    std::unique_ptr<RegisterAccess> reg;

    /// The description makes no sense here: a reference that leads nowhere or in a circle, or to
    /// data that come with images only.
    bool isUnusable = false;

    std::vector<OrvGenApi::Node *> written;   ///< the node and all that are written with it
    std::vector<OrvGenApi::Node *> terminals; ///< the node and the registers its value comes from
    bool isValueCachable = true;
    bool areLimitsCachable = true;
    bool isAccessCachable = true;
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

    bool IsCachable() const override { return m_links.isValueCachable; }
    GenApi::ECachingMode GetCachingMode() const override
    {
        return m_links.isValueCachable ? Base::GetCachingMode() : GenApi::NoCache;
    }
    std::vector<OrvGenApi::Node *> writtenNodes() override { return m_links.written; }
    std::vector<OrvGenApi::Node *> terminalNodes() override { return m_links.terminals; }
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
    bool accessIsCachable() const override { return m_links.isAccessCachable; }
    bool valueIsCachable() const override { return m_links.isValueCachable; }
    bool limitsAreCachable() const override { return m_links.areLimitsCachable; }
    void collectChildren(std::vector<OrvGenApi::Node *> &children,
                         GenApi::ELinkType linkType) const override;

private:
    NodeLinks &m_links;
};

/// The access mode that availability and locks leave of `ownMode()`.
GenApi::EAccessMode restrictedAccessMode(const NodeLinks &links,
                                         const std::function<GenApi::EAccessMode()> &ownMode);

/// Appends the neighbours that `links` knows.
void appendChildren(const NodeLinks &links, GenApi::ELinkType linkType,
                    std::vector<OrvGenApi::Node *> &children);

template<typename Base>
GenApi::EAccessMode DescribedNode<Base>::readAccessMode() const
{
    return restrictedAccessMode(m_links, [this] { return ownAccessMode(); });
}

template<typename Base>
void DescribedNode<Base>::collectChildren(std::vector<OrvGenApi::Node *> &children,
                                          GenApi::ELinkType linkType) const
{
    Base::collectChildren(children, linkType);
    appendChildren(m_links, linkType, children);
}

} // namespace OrvDescription

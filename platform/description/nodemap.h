// SPDX-License-Identifier: MIT
#pragma once

#include <genapi/nodes/nodemapbase.h>

#include <memory>
#include <string>

typedef struct _ArvDevice ArvDevice;
typedef struct _ArvGc ArvGc;

namespace OrvDescription {

class Description;
class NodeMapBuilder;
class RegisterCache;
class RegisterPort;
struct NodeLinks;

/// How much a node map has talked to its camera.
struct Transactions
{
    uint64_t reads = 0;
    uint64_t writes = 0;
};

/// The node map of a device description, evaluated by Aravis.
///
/// All nodes are made when the description is loaded and live as long as the map; loading reads
/// nothing from the camera. Values, limits and access modes are read when they are asked for and
/// kept until something that they depend on changes.
class GENAPI_DECL NodeMap : public OrvGenApi::NodeMapBase
{
public:
    /// The node map of an opened camera. The map holds a reference to the device. Throws
    /// `RuntimeException` with a text of one line when the camera has no description or one that
    /// cannot be used.
    static std::unique_ptr<NodeMap> open(ArvDevice *device);

    /// The node map of a description without a camera: registers live in memory and are 0 at the
    /// beginning. Throws as above; the text begins with `source`.
    static std::unique_ptr<NodeMap> fromText(const char *xml, std::size_t size,
                                             const std::string &source);
    static std::unique_ptr<NodeMap> fromFile(const std::string &fileName);

    ~NodeMap() override;

    /// Since the map was made.
    Transactions transactions() const;

private:
    friend class NodeMapBuilder;

    NodeMap(const std::string &modelName, std::unique_ptr<RegisterPort> port);
    static std::unique_ptr<NodeMap> build(const char *xml, std::size_t size,
                                          const std::string &source,
                                          std::unique_ptr<RegisterPort> port);

    std::unique_ptr<RegisterCache> m_cache;
    ArvDevice *m_portDevice = nullptr;
    ArvGc *m_engine = nullptr;
    std::vector<std::unique_ptr<NodeLinks>> m_links;
};

} // namespace OrvDescription

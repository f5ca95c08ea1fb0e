// SPDX-License-Identifier: MIT
#pragma once

#include "description.h"

#include <cameraio/registerio.h>
#include <genapi/nodes/nodemapbase.h>

#include <deque>
#include <memory>
#include <string>

namespace OrvDescription {

class NodeMapBuilder;
class Poller;
struct NodeLinks;

/// The node map of a device description.
///
/// All nodes are created with the map and exist as long as it; that reads nothing from the camera.
/// Values, limits and access modes are read when they are queried, and cached until something that
/// they depend on changes.
class NodeMap : public OrvGenApi::NodeMapBase
{
public:
    /// The node map of a camera, whose registers are accessed through the port.
    NodeMap(std::shared_ptr<const Description> description,
            std::unique_ptr<OrvCameraIo::Port> port);
    ~NodeMap() override;

    /// The node map of a description without a camera: registers are in memory and initially 0.
    /// Throws `RuntimeException` with a text of one line, which begins with `source` or the file
    /// name, when the description is invalid.
    static std::unique_ptr<NodeMap> fromText(const char *xml, std::size_t size,
                                             const std::string &source);
    static std::unique_ptr<NodeMap> fromFile(const std::string &fileName);

    const Description &description() const { return *m_description; }
    OrvCameraIo::RegisterIo &registers() const { return *m_registers; }

    /// Since the construction of the map.
    OrvCameraIo::Transactions transactions() const { return m_registers->transactions(); }

    /// Sets a further listener to the events of the camera; null for none. When this returns, no
    /// call of the previous listener is running.
    void setListener(OrvCameraIo::RegisterIoListener *listener);

    /// As `Poll`, in the background: see `Poller`. Call it on the thread that runs the main
    /// context.
    void pollLater(int64_t elapsedMs);

protected:
    void fetchMissing(OrvGenApi::Question &question) const override;
    void carryOut(OrvGenApi::Question &question) override;

private:
    friend class NodeMapBuilder;
    class Listener;

    OrvCameraIo::PortHints hints() const;
    void notifyUnanswered();
    void notifyAll();

    const std::shared_ptr<const Description> m_description;
    const std::unique_ptr<std::deque<NodeLinks>> m_links;
    const std::unique_ptr<OrvCameraIo::RegisterIo> m_registers;
    const std::unique_ptr<Listener> m_listener;
    std::unique_ptr<Poller> m_poller;
};

} // namespace OrvDescription

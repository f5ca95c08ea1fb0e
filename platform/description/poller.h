// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/registerio.h>
#include <genapi/nodes/nodemapbase.h>

#include <deque>
#include <memory>
#include <vector>

namespace OrvDescription {

struct NodeLinks;

/// Polls the features of a node map that have a polling time: reads their registers in the
/// background, all that are due in one batch. Only features whose bytes have changed are notified,
/// and their dependents invalidated.
///
/// A feature is polled while it is in use, that is, while its value is queried after each change,
/// or while it is kept polled (`Node::keepPolled`). Other features are invalidated when their
/// polling time has expired, so that the next query reads the camera.
///
/// A register that the camera has refused is read again from time to time, whether it is polled or
/// not, because a busy camera or another state of it is temporary.
///
/// Use it on the thread that runs the main context.
class Poller
{
public:
    /// All must outlive the object.
    Poller(OrvGenApi::NodeMapBase &map, std::deque<NodeLinks> &links, OrvCameraIo::RegisterIo &io);
    ~Poller();
    Poller(const Poller &) = delete;
    Poller &operator=(const Poller &) = delete;

    /// `elapsedMs` milliseconds have passed since the last call.
    void poll(int64_t elapsedMs);

private:
    struct Feature
    {
        OrvGenApi::Node *node = nullptr;
        std::vector<NodeLinks *> registers; ///< those of its value
        int64_t sincePolled = 0;            ///< ms
    };

    /// A register that is being read, and its previous contents.
    struct Pending
    {
        NodeLinks *links = nullptr;
        OrvGenApi::RegisterRange range;
        OrvCameraIo::RegisterIo::Known before;
    };

    std::vector<NodeLinks *> takeDue(int64_t elapsedMs);
    std::vector<NodeLinks *> takeRefused(int64_t elapsedMs);
    void lookAt(const Feature &feature);
    void startReading(const std::vector<NodeLinks *> &registers);
    void notifyChanged();

    OrvGenApi::NodeMapBase &m_map;
    std::deque<NodeLinks> &m_links;
    OrvCameraIo::RegisterIo &m_io;
    int64_t m_sinceRefused = 0; ///< ms since refused registers were read again
    int64_t m_refusalPause;     ///< ms until they are read again
    std::vector<Feature> m_features;
    std::vector<OrvGenApi::RegisterRange> m_missing; ///< registers to poll that were never read
    std::vector<Pending> m_pending;                  ///< empty unless a batch is being read
    std::unique_ptr<OrvCameraIo::Request> m_request;
    const std::shared_ptr<Poller *> m_self; ///< null after the destruction
};

} // namespace OrvDescription

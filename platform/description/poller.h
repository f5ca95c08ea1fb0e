// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/registerio.h>
#include <genapi/nodes/nodemapbase.h>

#include <deque>
#include <memory>
#include <vector>

namespace OrvDescription {

struct NodeLinks;

/// Polls the features of a node map that have a polling time: their registers are read in the
/// background, all that are due in one batch. Only those whose bytes have changed are notified and
/// outdate what depends on them.
///
/// A feature is polled as long as it is looked at, that is, as long as its value is queried after
/// each change, or while it is kept polled (`Node::keepPolled`). Another one is outdated when its
/// time is up, so that the next query reaches the camera.
///
/// A register that the camera has refused is read again from time to time, whether it is polled or
/// not: a camera that was busy, or in some other state, is not so for good.
///
/// Belongs to the thread that runs the main context.
class Poller
{
public:
    /// All must outlive the object.
    Poller(OrvGenApi::NodeMapBase &map, std::deque<NodeLinks> &links, OrvCameraIo::RegisterIo &io);
    ~Poller();
    Poller(const Poller &) = delete;
    Poller &operator=(const Poller &) = delete;

    /// So many ms have passed since the last call.
    void poll(int64_t elapsedMs);

private:
    struct Feature
    {
        OrvGenApi::Node *node = nullptr;
        std::vector<NodeLinks *> registers; ///< that its value is computed from
        int64_t sincePolled = 0;            ///< ms
    };

    /// A register that is being read, and what was known of it before.
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
    int64_t m_sinceRefused = 0; ///< ms since those that were refused were read again
    int64_t m_refusalPause;     ///< ms until they are the next time
    std::vector<Feature> m_features;
    std::vector<OrvGenApi::RegisterRange> m_missing; ///< of what is to be polled and was never read
    std::vector<Pending> m_pending;                  ///< empty unless a batch is under way
    std::unique_ptr<OrvCameraIo::Request> m_request;
    const std::shared_ptr<Poller *> m_self; ///< null after the end
};

} // namespace OrvDescription

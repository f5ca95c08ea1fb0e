// SPDX-License-Identifier: MIT
#include "poller.h"

#include "nodelinks.h"

#include <cameraio/limits.h>
#include <cameraio/maincontext.h>

#include <algorithm>
#include <set>

using namespace OrvGenApi;
using OrvCameraIo::Status;
namespace Limits = OrvCameraIo::Limits;

namespace OrvDescription {

namespace {

std::vector<NodeLinks *> registersBehind(NodeLinks &feature)
{
    std::vector<NodeLinks *> registers;
    std::set<const NodeLinks *> seen;
    std::vector<NodeLinks *> pending{&feature};
    while (!pending.empty()) {
        NodeLinks *links = pending.back();
        pending.pop_back();
        if (!seen.insert(links).second || links->isUnusable)
            continue;
        if (links->reg)
            registers.push_back(links);
        pending.insert(pending.end(), links->valueChildren.begin(), links->valueChildren.end());
    }
    return registers;
}

} // namespace

Poller::Poller(NodeMapBase &map, std::deque<NodeLinks> &links, OrvCameraIo::RegisterIo &io)
    : m_map(map)
    , m_links(links)
    , m_io(io)
    , m_refusalPause(Limits::refusalPause.count())
    , m_self(std::make_shared<Poller *>(this))
{
    for (NodeLinks &candidate : links) {
        if (candidate.node->GetPollingTime() < 0)
            continue;
        Feature feature;
        feature.node = candidate.node;
        feature.registers = registersBehind(candidate);
        if (!feature.registers.empty())
            m_features.push_back(std::move(feature));
    }
}

Poller::~Poller()
{
    *m_self = nullptr;
}

void Poller::poll(int64_t elapsedMs)
{
    std::vector<NodeLinks *> due = takeDue(elapsedMs);
    const std::vector<NodeLinks *> refused = takeRefused(elapsedMs);
    due.insert(due.end(), refused.begin(), refused.end());
    if ((!due.empty() || !m_missing.empty()) && !m_request)
        startReading(due);
}

/// Returns the registers to read; invalidates features that are not in use.
std::vector<NodeLinks *> Poller::takeDue(int64_t elapsedMs)
{
    std::vector<NodeLinks *> due;
    std::vector<Node *> outdated;
    const GenApi::AutoLock lock(m_map.GetLock());
    for (Feature &feature : m_features) {
        feature.sincePolled += elapsedMs;
        if (feature.sincePolled < feature.node->GetPollingTime())
            continue;
        feature.sincePolled = 0;
        if (feature.node->takePollWanted())
            lookAt(feature);
        for (NodeLinks *links : feature.registers) {
            const bool isKnown = links->reg->known().second.isKnown;
            if (!links->reg->isLookedAt() && isKnown)
                outdated.push_back(links->node);
            else if (links->reg->isLookedAt() && !links->reg->wasRefused())
                due.push_back(links);
        }
    }
    if (!outdated.empty())
        m_map.forget(outdated);
    std::sort(due.begin(), due.end());
    due.erase(std::unique(due.begin(), due.end()), due.end());
    return due;
}

std::vector<NodeLinks *> Poller::takeRefused(int64_t elapsedMs)
{
    m_sinceRefused += elapsedMs;
    if (m_request || m_sinceRefused < m_refusalPause)
        return {};
    m_sinceRefused = 0;
    std::vector<NodeLinks *> refused;
    const GenApi::AutoLock lock(m_map.GetLock());
    for (NodeLinks &links : m_links) {
        if (links.reg && links.reg->wasRefused() && isRefusal(links.reg->known().second.status))
            refused.push_back(&links);
    }
    m_refusalPause = refused.empty() ? Limits::refusalPause.count()
                                     : std::min<int64_t>(2 * m_refusalPause,
                                                         Limits::longestRefusalPause.count());
    return refused;
}

/// Marks the registers of the feature's value as in use, and notes those that were never read.
void Poller::lookAt(const Feature &feature)
{
    Question question(Question::Kind::Looking);
    m_map.look(question, [&] {
        try {
            if (auto *value = dynamic_cast<GenApi::IValue *>(feature.node))
                value->ToString();
        } catch (const GenICam::GenericException &) {
            // There is no value at present.
        }
    });
    m_missing.insert(m_missing.end(), question.missing.begin(), question.missing.end());
    if (!question.missing.empty())
        feature.node->keepPolled(); // the missing data may refer to further registers
}

void Poller::startReading(const std::vector<NodeLinks *> &registers)
{
    std::vector<RegisterRange> ranges = std::exchange(m_missing, {});
    {
        const GenApi::AutoLock lock(m_map.GetLock());
        for (NodeLinks *links : registers) {
            auto [range, known] = links->reg->known();
            if (!known.isKnown || !isAnswer(known.status))
                continue;
            ranges.push_back(range);
            m_pending.push_back({links, range, std::move(known)});
        }
    }
    if (ranges.empty())
        return;
    m_request = m_io.readLater(std::move(ranges), [self = m_self] {
        OrvCameraIo::MainContext::post([self] {
            if (*self)
                (*self)->notifyChanged();
        });
    });
}

void Poller::notifyChanged()
{
    std::vector<Node *> changed;
    for (const Pending &pending : std::exchange(m_pending, {})) {
        const auto now = m_io.look(pending.range, 0);
        if (now.status == pending.before.status && now.bytes == pending.before.bytes)
            continue;
        if (isRefusal(pending.before.status) && now.status == Status::Done)
            m_refusalPause = Limits::refusalPause.count(); // others may be refused, too
        pending.links->reg->setLookedAt(false);
        changed.push_back(pending.links->node);
    }
    m_request.reset();
    if (changed.empty())
        return;
    // The new contents are cached already; only dependents are invalidated.
    m_map.enterChange();
    m_map.changed(changed);
    m_map.leaveChange();
}

} // namespace OrvDescription

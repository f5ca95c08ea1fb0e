// SPDX-License-Identifier: MIT
#include "nodemap.h"

#include "nodelinks.h"
#include "nodemapbuilder.h"
#include "poller.h"

#include <cameraio/maincontext.h>
#include <cameraio/memoryport.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <mutex>
#include <sstream>

using namespace OrvGenApi;
using OrvCameraIo::RegisterIoListener;

namespace OrvDescription {

/// Forwards the events of the camera: to the map through the main context, to another listener at
/// once.
class NodeMap::Listener final : public RegisterIoListener
{
public:
    explicit Listener(NodeMap &map) : m_target(std::make_shared<Target>()) { m_target->map = &map; }
    ~Listener() override
    {
        const std::lock_guard<std::recursive_mutex> lock(m_target->mutex);
        m_target->map = nullptr;
    }

    void setOther(RegisterIoListener *other)
    {
        const std::lock_guard<std::recursive_mutex> lock(m_mutex);
        m_other = other;
    }

    void answersAgain() override
    {
        post(&NodeMap::notifyUnanswered);
        forward(&RegisterIoListener::answersAgain);
    }

    void lost() override { forward(&RegisterIoListener::lost); }

    void found() override
    {
        post(&NodeMap::notifyAll);
        forward(&RegisterIoListener::found);
    }

private:
    /// null after the destruction of the map
    struct Target
    {
        std::recursive_mutex mutex; ///< recursive, because a listener may destroy the map
        NodeMap *map = nullptr;
    };

    void post(void (NodeMap::*call)())
    {
        OrvCameraIo::MainContext::post([target = m_target, call] {
            const std::lock_guard<std::recursive_mutex> lock(target->mutex);
            if (target->map)
                (target->map->*call)();
        });
    }

    void forward(void (RegisterIoListener::*event)())
    {
        const std::lock_guard<std::recursive_mutex> lock(m_mutex);
        if (m_other)
            (m_other->*event)();
    }

    const std::shared_ptr<Target> m_target;
    std::recursive_mutex m_mutex;
    RegisterIoListener *m_other = nullptr;
};

NodeMap::NodeMap(std::shared_ptr<const Description> description,
                 std::unique_ptr<OrvCameraIo::Port> port)
    : NodeMapBase(std::string(description->modelName()))
    , m_description(std::move(description))
    , m_links(std::make_unique<std::deque<NodeLinks>>())
    , m_registers(std::make_unique<OrvCameraIo::RegisterIo>(std::move(port)))
    , m_listener(std::make_unique<Listener>(*this))
{
    NodeMapBuilder(*this).build();
    m_registers->setHints(hints());
    m_registers->setListener(m_listener.get());
    m_poller = std::make_unique<Poller>(*this, *m_links, *m_registers);
}

NodeMap::~NodeMap()
{
    m_registers->setListener(nullptr);
}

std::unique_ptr<NodeMap> NodeMap::fromText(const char *xml, std::size_t size,
                                           const std::string &source)
{
    return std::make_unique<NodeMap>(Description::shared({xml, size}, source),
                                     std::make_unique<OrvCameraIo::MemoryPort>());
}

std::unique_ptr<NodeMap> NodeMap::fromFile(const std::string &fileName)
{
    std::ifstream file(fileName, std::ios::binary);
    std::ostringstream contents;
    contents << file.rdbuf();
    if (!file)
        throw GenICam::RuntimeException((fileName + ": " + std::strerror(errno)).c_str(), __FILE__,
                                        __LINE__);
    const std::string text = contents.str();
    return fromText(text.data(), text.size(), fileName);
}

OrvCameraIo::PortHints NodeMap::hints() const
{
    OrvCameraIo::PortHints hints;
    const int major = m_description->schemaMajorVersion();
    hints.isWordNumber = major < 1 || (major == 1 && m_description->schemaMinorVersion() < 1);
    for (const NodeLinks &links : *m_links) {
        if (links.isUnusable || !links.reg || !GenApi::IsReadable(links.reg->accessMode()) ||
            !links.reg->place.isFixed())
            continue;
        try {
            hints.declared.push_back(links.reg->place.range(links.node->name()));
        } catch (const GenICam::OutOfRangeException &) {
            // The length is invalid, so the register is left out.
        }
    }
    auto &declared = hints.declared;
    std::sort(declared.begin(), declared.end());
    declared.erase(std::unique(declared.begin(), declared.end()), declared.end());
    return hints;
}

void NodeMap::setListener(RegisterIoListener *listener)
{
    m_listener->setOther(listener);
}

void NodeMap::pollLater(int64_t elapsedMs)
{
    m_poller->poll(elapsedMs);
}

void NodeMap::fetchMissing(Question &question) const
{
    auto &missing = question.missing;
    std::sort(missing.begin(), missing.end());
    missing.erase(std::unique(missing.begin(), missing.end()), missing.end());
    m_registers->read(missing);
}

void NodeMap::carryOut(Question &question)
{
    for (const RegisterWrite &write : question.writes) {
        const OrvCameraIo::Status status = m_registers->write({write});
        if (status != OrvCameraIo::Status::Done)
            throwFailure(status, write.node);
    }
}

void NodeMap::notifyUnanswered()
{
    std::vector<Node *> nodes;
    {
        const GenApi::AutoLock lock(GetLock());
        for (const NodeLinks &links : *m_links) {
            if (links.reg && links.reg->takeUnanswered())
                nodes.push_back(links.node);
        }
    }
    if (!nodes.empty())
        notifyChanged(nodes);
}

void NodeMap::notifyAll()
{
    std::vector<Node *> nodes;
    for (const NodeLinks &links : *m_links) {
        if (links.reg)
            nodes.push_back(links.node);
    }
    InvalidateNodes();
    notifyChanged(nodes);
}

} // namespace OrvDescription

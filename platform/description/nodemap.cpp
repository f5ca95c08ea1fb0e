// SPDX-License-Identifier: MIT
#include "nodemap.h"

#include "description.h"
#include "nodelinks.h"
#include "nodemapbuilder.h"
#include "portdevice.h"
#include "registercache.h"

#include <arv.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>

namespace OrvDescription {

namespace {

/// Aravis reports what it dislikes of a description on the standard error output; what matters to
/// us becomes an exception. The variable with which users ask for it is left its effect.
void quietEngine()
{
    static const bool done = [] {
        if (!g_getenv("ARV_DEBUG"))
            arv_debug_enable("all:0");
        return true;
    }();
    static_cast<void>(done);
}

} // namespace

NodeMap::NodeMap(const std::string &modelName, std::unique_ptr<RegisterPort> port)
    : NodeMapBase(modelName)
    , m_cache(std::make_unique<RegisterCache>(std::move(port)))
    , m_portDevice(newPortDevice(m_cache.get()))
{
}

NodeMap::~NodeMap()
{
    g_clear_object(&m_engine);
    g_clear_object(&m_portDevice);
}

std::unique_ptr<NodeMap> NodeMap::build(const char *xml, std::size_t size,
                                        const std::string &source,
                                        std::unique_ptr<RegisterPort> port)
{
    quietEngine();
    const Description description(xml, size, source);
    std::unique_ptr<NodeMap> map(new NodeMap(description.modelName(), std::move(port)));
    map->m_engine = arv_gc_new(map->m_portDevice, xml, size);
    if (!map->m_engine)
        throw GenICam::RuntimeException((source + ": the description cannot be used").c_str(),
                                        __FILE__, __LINE__);
    NodeMapBuilder(*map, description).build(source);
    return map;
}

std::unique_ptr<NodeMap> NodeMap::open(ArvDevice *device)
{
    quietEngine();
    size_t size = 0;
    const char *xml = arv_device_get_genicam_xml(device, &size);
    if (!xml)
        throw GenICam::RuntimeException("The camera has no description", __FILE__, __LINE__);
    return build(xml, size, "The camera's description", std::make_unique<DevicePort>(device));
}

std::unique_ptr<NodeMap> NodeMap::fromText(const char *xml, std::size_t size,
                                           const std::string &source)
{
    return build(xml, size, source, std::make_unique<MemoryPort>());
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

Transactions NodeMap::transactions() const
{
    const GenApi::AutoLock lock(GetLock());
    return {m_cache->reads(), m_cache->writes()};
}

} // namespace OrvDescription

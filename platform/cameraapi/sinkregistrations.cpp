// SPDX-License-Identifier: MIT
#include "sinkregistrations.h"

#include <OrvGenParam/ParamEventSink.h>

#include <cameraio/maincontext.h>

#include <algorithm>
#include <vector>

namespace OrvGenParam {

using Link = std::shared_ptr<SinkLink>;

namespace {

void waitForCall(const Link &link)
{
    const std::lock_guard<std::recursive_mutex> wait(link->calling);
}

} // namespace

struct SinkRegistrations::Sinks
{
    explicit Sinks(Param *p) : param(p) {}

    bool has(const Link &link)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return std::find(links.begin(), links.end(), link) != links.end();
    }

    std::vector<Link> all()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return links;
    }

    void callAll()
    {
        for (const Link &link : all()) {
            const std::lock_guard<std::recursive_mutex> calling(link->calling);
            if (link->sink && has(link))
                link->sink->OnParameterUpdate(param);
        }
    }

    void callPending()
    {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            isPending = false;
        }
        callAll();
    }

    Param *const param; ///< valid only while there are links
    std::mutex mutex;   ///< never held while a sink is called
    std::vector<Link> links;
    bool isPending = false; ///< the main context has not processed the request yet
};

SinkRegistrations::SinkRegistrations(Param *param) : m_sinks(std::make_shared<Sinks>(param)) {}

SinkRegistrations::~SinkRegistrations()
{
    std::vector<Link> links;
    {
        const std::lock_guard<std::mutex> lock(m_sinks->mutex);
        links.swap(m_sinks->links);
    }
    for (const Link &link : links)
        waitForCall(link);
}

void SinkRegistrations::add(ParamEventSink *sink)
{
    if (!sink)
        return;
    const std::lock_guard<std::mutex> lock(m_sinks->mutex);
    auto &links = m_sinks->links;
    const auto isDead = [](const Link &link) { return link.use_count() == 1; };
    links.erase(std::remove_if(links.begin(), links.end(), isDead), links.end());
    if (std::find(links.begin(), links.end(), sink->m_link) == links.end())
        links.push_back(sink->m_link);
}

void SinkRegistrations::remove(ParamEventSink *sink)
{
    if (!sink)
        return;
    const Link link = sink->m_link;
    {
        const std::lock_guard<std::mutex> lock(m_sinks->mutex);
        auto &links = m_sinks->links;
        const auto found = std::find(links.begin(), links.end(), link);
        if (found == links.end())
            return;
        links.erase(found);
    }
    waitForCall(link);
}

bool SinkRegistrations::isEmpty() const
{
    const std::lock_guard<std::mutex> lock(m_sinks->mutex);
    return m_sinks->links.empty();
}

void SinkRegistrations::notify()
{
    // A sink may destroy the parameter, and with it this object.
    const std::shared_ptr<Sinks> sinks = m_sinks;
    sinks->callAll();
}

void SinkRegistrations::notifyLater()
{
    {
        const std::lock_guard<std::mutex> lock(m_sinks->mutex);
        if (m_sinks->isPending || m_sinks->links.empty())
            return;
        m_sinks->isPending = true;
    }
    OrvCameraIo::MainContext::post([sinks = m_sinks] { sinks->callPending(); });
}

} // namespace OrvGenParam

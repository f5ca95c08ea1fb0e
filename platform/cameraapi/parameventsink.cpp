// SPDX-License-Identifier: MIT
#include "sinkregistrations.h"

#include <OrvGenParam/ParamEventSink.h>

namespace OrvGenParam {

ParamEventSink::ParamEventSink() : m_link(std::make_shared<SinkLink>())
{
    m_link->sink = this;
}

ParamEventSink::~ParamEventSink()
{
    const std::lock_guard<std::recursive_mutex> lock(m_link->calling);
    m_link->sink = nullptr;
}

} // namespace OrvGenParam

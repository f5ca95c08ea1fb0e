// SPDX-License-Identifier: MIT
#include "camconfig/showing.h"

namespace OrvGui {

Showing::Showing(const MapperContext::Pointer &context, const QObject *object)
    : m_context(context), m_object(object)
{
    m_context->m_showings.append(this);
}

Showing::~Showing()
{
    m_context->m_showings.removeOne(this);
    if (m_isOver && m_context->hasMapper() && !m_context->isShownIn(m_object))
        m_context->m_showBound(m_object);
}

} // namespace OrvGui

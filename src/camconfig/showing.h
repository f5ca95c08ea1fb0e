// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappercontext.h"

namespace OrvGui {

/// While an instance exists, its object is being updated with a value of the camera, and its
/// signals must not cause a write.
///
/// It is over before its destruction when a receiver of the object's signals unmaps the object or
/// destroys the mapper. Later signals of the object for the same update must not cause a write to
/// another camera either. If the object has been bound to another parameter in between, that one is
/// shown at the end.
class Showing
{
public:
    Showing(const MapperContext::Pointer &context, const QObject *object);
    ~Showing();
    Q_DISABLE_COPY(Showing)

    const QObject *object() const { return m_object; }
    bool isOver() const { return m_isOver || !m_context->hasMapper(); }
    void end() { m_isOver = true; }

private:
    const MapperContext::Pointer m_context;
    const QObject *const m_object;
    bool m_isOver = false;
};

} // namespace OrvGui

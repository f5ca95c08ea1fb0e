// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappercontext.h"

namespace OrvGui {

/// While one exists, its object shows a value of the camera: nothing is written.
///
/// It is over before its end when a receiver of the object's signals unmaps the object or destroys
/// the mapper. The signals that the object emits afterwards for the same change must not write to
/// another camera either; a parameter that the object has been given in between is shown at the
/// end.
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

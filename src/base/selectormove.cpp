// SPDX-License-Identifier: MIT
#include "base/selectormove.h"

#include "base/genicamstring.h"

#include <GenApi/GenApi.h>

#include <algorithm>

namespace OrvGui {

namespace {

bool isTaken(GenApi::IValue *selector, const QString &text)
{
    try {
        selector->FromString(toUtf8(text), true);
        return true;
    } catch (const GenICam::GenericException &) {
        return false;
    }
}

} // namespace

void SelectorMove::moveTo(GenApi::IValue *selector, const QString &text)
{
    const QString former = fromUtf8(selector->ToString(false, false));
    if (former == text)
        return;
    if (!m_detour)
        m_detour.emplace();
    // Stored before the write: the camera may execute a write without an answer.
    const bool isKnown = std::any_of(m_former.begin(), m_former.end(),
                                     [=](const auto &one) { return one.first == selector; });
    if (!isKnown)
        m_former.emplace_back(selector, former);
    selector->FromString(toUtf8(text), true);
}

std::vector<GenApi::IValue *> SelectorMove::putBack()
{
    std::vector<GenApi::IValue *> away;
    while (!m_former.empty()) {
        const auto former = m_former.back();
        m_former.pop_back();
        // Also for a selector whose write failed: the camera may have executed it.
        if (!isTaken(former.first, former.second) && !isTaken(former.first, former.second))
            away.push_back(former.first);
    }
    m_detour.reset();
    return away;
}

void SelectorMove::abandon()
{
    m_former.clear();
    m_detour.reset();
}

} // namespace OrvGui

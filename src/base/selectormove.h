// SPDX-License-Identifier: MIT
#pragma once

#include "base/selectordetour.h"

#include <GenApi/IValue.h>

#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace OrvGui {

/// Moves selectors and, at its end, back to where they were. Nothing on this thread is notified of
/// changes in between; a selector that is in its place already does not move.
class SelectorMove
{
public:
    SelectorMove() = default;
    ~SelectorMove() { putBack(); }
    Q_DISABLE_COPY(SelectorMove)

    /// Throws the exceptions of GenICam; the text is GenICam's.
    void moveTo(GenApi::IValue *selector, const QString &text);

    bool isAway() const { return m_detour.has_value(); }

    /// Answers those that the camera has not taken back: it is gone, or keeps them where they are.
    std::vector<GenApi::IValue *> putBack();

    /// For selectors that are no more.
    void abandon();

private:
    std::vector<std::pair<GenApi::IValue *, QString>> m_former; ///< the last one last
    std::optional<SelectorDetour> m_detour;                     ///< once a selector has moved
};

} // namespace OrvGui

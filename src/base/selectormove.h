// SPDX-License-Identifier: MIT
#pragma once

#include "base/selectordetour.h"

#include <GenApi/IValue.h>

#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace OrvGui {

/// Moves selectors, and restores them in its destructor. Notifications on this thread are
/// suppressed while selectors are moved. A selector that already has the value is not written.
class SelectorMove
{
public:
    SelectorMove() = default;
    ~SelectorMove() { putBack(); }
    Q_DISABLE_COPY(SelectorMove)

    /// `text` is in GenICam's format. Throws GenICam's exceptions.
    void moveTo(GenApi::IValue *selector, const QString &text);

    bool isAway() const { return m_detour.has_value(); }

    /// Restores the selectors. Returns those that could not be restored, because the camera is
    /// disconnected or refuses the value.
    std::vector<GenApi::IValue *> putBack();

    /// For selectors that no longer exist.
    void abandon();

private:
    std::vector<std::pair<GenApi::IValue *, QString>> m_former; ///< in the order of the moves
    std::optional<SelectorDetour> m_detour;                     ///< once a selector has moved
};

} // namespace OrvGui

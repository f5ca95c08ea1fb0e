// SPDX-License-Identifier: MIT
#pragma once

#include "genparamtree/selectordetour.h"

#include <GenApi/IValue.h>

#include <QString>
#include <QVector>

#include <optional>

class GenParamTreeModel;

namespace OrvGui {

/// A value of a selector.
struct SelectorPlace
{
    GenApi::IValue *selector = nullptr;
    QString value; ///< as GenICam's text

    bool operator==(const SelectorPlace &other) const
    {
        return selector == other.selector && value == other.value;
    }
};

/// Those that a feature depends on; selectors of selectors come before these.
using SelectorPlaces = QVector<SelectorPlace>;

/// Where the selectors of a feature are now. Waits for the camera when that is not known.
SelectorPlaces placesOf(GenApi::IValue *feature, const GenParamTreeModel &model);

/// Moves selectors and, at its end, back to where they were. Nothing on this thread is told of what
/// changes in between; a selector that is in its place already does not move.
class SelectorMove
{
public:
    /// Throws the exception of GenICam of the selector that cannot be moved; the others are back by
    /// then.
    explicit SelectorMove(const SelectorPlaces &places);
    ~SelectorMove();
    Q_DISABLE_COPY(SelectorMove)

private:
    void moveBack();

    SelectorPlaces m_former;
    std::optional<SelectorDetour> m_detour; ///< once a selector has moved
};

} // namespace OrvGui

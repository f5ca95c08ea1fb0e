// SPDX-License-Identifier: MIT
#pragma once

#include "settings/setting.h"

#include "base/selectors.h"

#include <GenApi/GenApi.h>

#include <QStringList>

#include <vector>

namespace OrvGui {

/// All values of a selector that the camera offers now. Throws the exceptions of GenICam.
QStringList positionsOf(GenApi::IValue *selector);

/// The feature of that name that has a value; null when there is none.
GenApi::IValue *settingOf(GenApi::INodeMap &map, const QString &name);

/// Moves selectors of a camera, and moves them back at its end.
///
/// Views that follow the features are not notified while the selectors are away, and once when they
/// are back.
class SelectorMoves
{
public:
    explicit SelectorMoves(GenApi::INodeMap &map) : m_map(map) {}
    ~SelectorMoves();
    Q_DISABLE_COPY(SelectorMoves)

    /// Throws the exceptions of GenICam. One that cannot be read is not moved: it could not be put
    /// back.
    void move(GenApi::IValue *selector, const QString &value);

    /// The same for all of the selection. Null when all is selected, otherwise why it is not.
    QString select(const Setting::Selection &selection);

    /// Whether the camera has not answered during the last `select`.
    bool isUnanswered() const { return m_isUnanswered; }

    /// Where the selector was; null for one that nothing was asked of.
    QString original(GenApi::IValue *selector) const;

    /// Leaves the selector where it is now.
    void keep(GenApi::IValue *selector);

    /// Names those that the camera has not taken back.
    QStringList putBack();

private:
    struct Moved
    {
        GenApi::IValue *selector;
        QString original;
        bool isAway = false;
    };

    Moved &remembered(GenApi::IValue *selector);

    GenApi::INodeMap &m_map;
    std::vector<Moved> m_moved;
    bool m_isUnanswered = false;
};

} // namespace OrvGui

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
/// Views of the features are not notified while the selectors are moved, and once when they are
/// restored.
class SettingSelectors
{
public:
    explicit SettingSelectors(GenApi::INodeMap &map) : m_map(map) {}
    ~SettingSelectors();
    Q_DISABLE_COPY(SettingSelectors)

    /// Throws GenICam's exceptions. A selector that cannot be read is not moved, because it could
    /// not be restored.
    void move(GenApi::IValue *selector, const QString &value);

    /// The same for the whole selection. Null on success, otherwise the reason of the failure.
    QString select(const Setting::Selection &selection);

    /// Whether the camera has not answered during the last `select`.
    bool isUnanswered() const { return m_isUnanswered; }

    /// The former value of the selector; null for one that was not moved.
    QString original(GenApi::IValue *selector) const;

    /// Keeps the selector at its present value.
    void keep(GenApi::IValue *selector);

    /// Restores the selectors. Returns the names of those that the camera has refused.
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

// SPDX-License-Identifier: MIT
#pragma once

#include "settings/setting.h"

#include "base/selectors.h"

#include <GenApi/GenApi.h>

#include <QStringList>

#include <vector>

namespace OrvGui {

/// All values of a selector that are available at present. Throws GenICam's exceptions.
QStringList positionsOf(GenApi::IValue *selector);

/// The feature of that name, if it has a value; otherwise null.
GenApi::IValue *settingOf(GenApi::INodeMap &map, const QString &name);

/// Moves selectors of a camera, and restores them in its destructor.
///
/// While the selectors are moved, views of the features are not notified; when they are restored,
/// views are notified once.
class SettingSelectors
{
public:
    explicit SettingSelectors(GenApi::INodeMap &map) : m_map(map) {}
    ~SettingSelectors();
    Q_DISABLE_COPY(SettingSelectors)

    /// Throws GenICam's exceptions. A selector that cannot be read is not moved, because it could
    /// not be restored.
    void move(GenApi::IValue *selector, const QString &value);

    /// Does the same for a whole selection. Null on success, otherwise the reason of the failure.
    QString select(const Setting::Selection &selection);

    /// Whether the camera did not answer during the last `select`.
    bool isUnanswered() const { return m_isUnanswered; }

    /// The original value of the selector; null for a selector that was not moved.
    QString original(GenApi::IValue *selector) const;

    /// Keeps the selector at its present value.
    void keep(GenApi::IValue *selector);

    /// Restores the selectors. Returns the names of those that the camera refuses to restore.
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

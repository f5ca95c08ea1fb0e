// SPDX-License-Identifier: MIT
#pragma once

#include "settings/setting.h"

#include <GenApi/GenApi.h>

namespace OrvGui {

/// What two sets of settings have for the same.
struct SettingDifference
{
    QString feature; ///< with its selection
    QString left;    ///< null where only the other one has it
    QString right;
};

using SettingDifferences = QVector<SettingDifference>;

/// The differences in the order of the left settings, then the settings that only the right side
/// has. The settings have their selections; a null value counts as a missing one. The node map
/// gives the types of the values, and may be null.
SettingDifferences differencesOf(const Settings &left, const Settings &right,
                                 GenApi::INodeMap *map);

} // namespace OrvGui

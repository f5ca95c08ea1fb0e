// SPDX-License-Identifier: MIT
#pragma once

#include "settings/setting.h"

#include <GenApi/GenApi.h>

namespace OrvGui {

/// A feature whose value differs between two sets of settings.
struct SettingDifference
{
    QString feature; ///< with its selection
    QString left;    ///< null if only the right side has a value
    QString right;
};

using SettingDifferences = QVector<SettingDifference>;

/// Returns the differences in the order of the left settings, then the settings that only the right
/// side has. The settings must include their selections; a null value counts as missing. The node
/// map supplies the types of the values, and may be null.
SettingDifferences differencesOf(const Settings &left, const Settings &right,
                                 GenApi::INodeMap *map);

} // namespace OrvGui

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

/// What differs, in the order of the left settings, then what only the right ones have. The
/// settings have their selections; a null value counts as none. The node map knows of the values
/// what kind they are, and may be null.
SettingDifferences differencesOf(const Settings &left, const Settings &right,
                                 GenApi::INodeMap *map);

} // namespace OrvGui

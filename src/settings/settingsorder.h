// SPDX-License-Identifier: MIT
#pragma once

#include "settings/setting.h"

#include <GenApi/GenApi.h>

namespace OrvGui {

// What the lines of a settings file mean: of each value, what was selected before it.

/// The settings in the order of the lines. Lines of selectors go into the selections of others;
/// for a selector that is a setting itself, the last one is kept. Features that the camera lacks
/// are kept.
Settings resolvedSettings(const Settings &lines, GenApi::INodeMap &map);

/// The same without a camera. Lines of selectors are recognised by their names and by features that
/// occur several times.
Settings resolvedSettings(const Settings &lines);

} // namespace OrvGui

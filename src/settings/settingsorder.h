// SPDX-License-Identifier: MIT
#pragma once

#include "settings/setting.h"

#include <GenApi/GenApi.h>

namespace OrvGui {

// Interpretation of a settings file: assigns to each value the selection by the lines before it.

/// Returns the settings in the order of the lines. Lines of selectors become the selections of
/// other settings; for a selector that is itself a setting, the last line is kept. Features that
/// the camera lacks are kept.
Settings resolvedSettings(const Settings &lines, GenApi::INodeMap &map);

/// The same without a camera. Selectors are recognised by their names, and by features that occur
/// several times.
Settings resolvedSettings(const Settings &lines);

} // namespace OrvGui

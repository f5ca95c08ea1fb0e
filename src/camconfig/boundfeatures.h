// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/featurereader.h"

namespace OrvGui {

/// The features that the windows for one camera show, so that they can be read together. A feature
/// that is missing here costs a transfer of its own.
namespace BoundFeatures {

FeatureReader::Names mainWindow();
FeatureReader::Names colorDialog();
FeatureReader::Names frameABDialog();
FeatureReader::Names outputDialog();
FeatureReader::Names pulseDialog();
FeatureReader::Names strobeDialog();
FeatureReader::Names triggerDialog();
FeatureReader::Names all();

} // namespace BoundFeatures
} // namespace OrvGui

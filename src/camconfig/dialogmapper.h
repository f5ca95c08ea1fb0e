// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/orvcamconfigmapper.h"

#include <memory>

namespace OrvGui {

class FeatureJournal;
class FeatureReader;

/// The mapper of a feature dialog, which reads and writes parameters of its own as the mapper does.
class DialogMapper : public OrvCamConfigMapper
{
public:
    /// The reader of the parameters of the mapper's array.
    FeatureReader &reader() const;

    /// The journal that records the user's writes to those parameters; null without an array.
    std::shared_ptr<FeatureJournal> journal() const;
};

} // namespace OrvGui

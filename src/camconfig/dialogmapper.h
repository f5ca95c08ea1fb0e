// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/orvcamconfigmapper.h"

#include <memory>

namespace OrvGui {

class FeatureJournal;
class FeatureReader;

/// The mapper of a feature dialog, with access to its reader and its journal.
class DialogMapper : public OrvCamConfigMapper
{
public:
    /// The reader of the parameters of the mapper's array.
    FeatureReader &reader() const;

    /// The journal that records the user's writes to those parameters; null without an array.
    std::shared_ptr<FeatureJournal> journal() const;
};

} // namespace OrvGui

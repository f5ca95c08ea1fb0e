// SPDX-License-Identifier: MIT
#include "camconfig/dialogmapper.h"

#include "camconfig/orvcamconfigmapper_p.h"

namespace OrvGui {

FeatureReader &DialogMapper::reader() const
{
    return d->context->reader;
}

std::shared_ptr<FeatureJournal> DialogMapper::journal() const
{
    return d->context->journal;
}

} // namespace OrvGui

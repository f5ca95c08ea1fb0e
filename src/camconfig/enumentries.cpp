// SPDX-License-Identifier: MIT
#include "camconfig/enumentries.h"

#include "base/cameratext.h"

#include <OrvGenParam.h>

namespace OrvGui {

OrvGenParam::EnumEntry *entryAt(const OrvGenParam::Enum *param, int index)
{
    return index < static_cast<int>(param->GetEntryCount())
               ? param->GetEntry(static_cast<uint32_t>(index))
               : nullptr;
}

QString symbolicOf(const OrvGenParam::EnumEntry *entry)
{
    return entry ? QString::fromUtf8(entry->GetSymbolic()) : QString();
}

QString captionOf(const OrvGenParam::EnumEntry *entry)
{
    return cameraText(symbolicOf(entry), LongestName);
}

} // namespace OrvGui

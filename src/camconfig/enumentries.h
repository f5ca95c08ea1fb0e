// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace OrvGenParam {
class Enum;
class EnumEntry;
} // namespace OrvGenParam

namespace OrvGui {

/// Also null when the index is out of range.
OrvGenParam::EnumEntry *entryAt(const OrvGenParam::Enum *param, int index);

/// The symbolic name; empty for null.
QString symbolicOf(const OrvGenParam::EnumEntry *entry);

/// The same, truncated for a control.
QString captionOf(const OrvGenParam::EnumEntry *entry);

} // namespace OrvGui

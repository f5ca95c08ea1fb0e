// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace OrvGenParam {
class Enum;
class EnumEntry;
} // namespace OrvGenParam

namespace OrvGui {

/// Null when the index is not below the number of entries, too.
OrvGenParam::EnumEntry *entryAt(const OrvGenParam::Enum *param, int index);

/// The symbolic name; empty for null.
QString symbolicOf(const OrvGenParam::EnumEntry *entry);

/// The same, short enough for a control.
QString captionOf(const OrvGenParam::EnumEntry *entry);

} // namespace OrvGui

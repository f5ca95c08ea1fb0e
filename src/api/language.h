// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace OrvGui {

/// Has windows that are made from now on be in that language ("de", "de_AT"), or, when it is empty,
/// in that of the locale. False, and nothing changes, when there is no translation. Takes an
/// application.
bool setLanguage(const QString &language);

} // namespace OrvGui

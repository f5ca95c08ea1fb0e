// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace OrvGui {

/// Sets the language of windows that are created from now on ("de", "de_AT"); when it is empty,
/// that of the locale. False, and nothing changes, when there is no translation. Needs an
/// application.
bool setLanguage(const QString &language);

} // namespace OrvGui

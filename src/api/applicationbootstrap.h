// SPDX-License-Identifier: MIT
#pragma once

namespace OrvGui {

/// Creates a `QApplication` when the process has no application object, for hosts that are not Qt
/// programs. It exists until the process ends. Every exported function that creates widgets calls
/// this first.
void ensureApplication();

} // namespace OrvGui

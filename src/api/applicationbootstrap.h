// SPDX-License-Identifier: MIT
#pragma once

namespace OrvGui {

/// Makes a `QApplication` when the process has no application object yet, for hosts that are not Qt
/// programs. It lives until the end of the process. Every exported entry point that makes widgets
/// calls this first.
void ensureApplication();

} // namespace OrvGui

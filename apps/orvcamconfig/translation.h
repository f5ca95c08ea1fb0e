// SPDX-License-Identifier: MIT
#pragma once

class QCoreApplication;

/// Lets the application speak the user's language, where there is a translation. The locale decides
/// (LANGUAGE, LC_ALL, LC_MESSAGES, LANG); the texts are English otherwise. Call it before the first
/// text is made.
void translate(QCoreApplication &application);

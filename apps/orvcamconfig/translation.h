// SPDX-License-Identifier: MIT
#pragma once

class QCoreApplication;

/// Installs the translation for the user's language, if there is one. The locale decides (LANGUAGE,
/// LC_ALL, LC_MESSAGES, LANG); otherwise the texts are English. Call it before the first text is
/// created.
void translate(QCoreApplication &application);

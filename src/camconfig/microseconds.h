// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

namespace OrvGui {

/// The unit of the times in the windows.
class Microseconds
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::Microseconds)

public:
    /// The Greek letter for the placeholder in a translatable text.
    static QChar mu() { return QChar(0x03BC); }

    static QString unit();
};

} // namespace OrvGui

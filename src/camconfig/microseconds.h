// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

namespace OrvGui {

/// The unit of the times that the windows show.
class Microseconds
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::Microseconds)

public:
    /// The Greek letter, which a translatable text contains as a place marker.
    static QChar mu() { return QChar(0x03BC); }

    static QString unit();
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

/// An action on a camera's features without a window.
struct Action
{
    enum Kind { Get, Set, Execute, Save, Load, Compare };

    Kind kind;
    QString subject; ///< the name of a feature or of a file
    QString value;   ///< for `Set`
};

using Actions = QVector<Action>;

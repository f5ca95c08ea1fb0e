// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

/// What is to be done with a camera's features without a window.
struct Action
{
    enum Kind { Get, Set, Execute, Save, Load, Compare };

    Kind kind;
    QString subject; ///< the name of a feature or of a file
    QString value;   ///< of `Set`
};

using Actions = QVector<Action>;

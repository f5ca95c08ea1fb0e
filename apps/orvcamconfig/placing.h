// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

class QSettings;
class QWidget;

/// Places the program's windows: always inside the available area of a screen.
namespace Placing {

/// The size for a feature tree, which grows with the font up to the size of the screen.
QSize treeSize(const QWidget *tree);

/// The centre of the screen.
void center(QWidget *window);

/// A position such that the window and another one of that width beside it are centred together; at
/// the edge of a screen that has no room for both.
void centerWith(QWidget *window, int otherWidth);

/// A position beside a window, if there is room for two thirds of the width: on the right,
/// otherwise on the left (reversed in right-to-left languages). Otherwise at the edge of the
/// screen, partly over the other window.
void beside(QWidget *window, const QWidget *other);

/// Stores the position of a window under that name.
void save(const QWidget *window, QSettings *settings, const QString &name);

/// Moves the window to the position stored under that name. Returns false if there is none, or if
/// most of it is outside of all screens.
bool restore(QWidget *window, const QSettings *settings, const QString &name);

} // namespace Placing

// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

class QSettings;
class QWidget;

/// Where the program's windows open: always inside the available area of a screen.
namespace Placing {

/// The size for a feature tree; it grows with the font, up to the size of the screen.
QSize treeSize(const QWidget *tree);

/// In the middle of the screen.
void center(QWidget *window);

/// In such a way that a window of that width beside it is in the middle together with it; at the
/// edge of a screen that has no room for both.
void centerWith(QWidget *window, int otherWidth);

/// Beside a window, if there is room for two thirds of the width: on the right, or else on the left
/// (in languages that are written from the right, the other way round). Otherwise at the edge of
/// the screen, partly over the other window.
void beside(QWidget *window, const QWidget *other);

/// Keeps the place of a window under that name.
void save(const QWidget *window, QSettings *settings, const QString &name);

/// Takes the window to the place that is kept under that name. False if there is none, or if it is
/// for the most part on no screen any more.
bool restore(QWidget *window, const QSettings *settings, const QString &name);

} // namespace Placing

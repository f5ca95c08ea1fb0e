// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class QLabel;
class QScrollArea;
class QString;
class QWidget;

/// Sizes of parts of a form that depend on each other across its layouts.
namespace FormFit {

/// Makes labels in different rows of a form equally wide.
void align(const QList<QLabel *> &labels);

/// The width of a line of text in the font of the widget, including leading and trailing spaces.
int textWidth(const QWidget *widget, const QString &text);

/// Limits the width of a button or line edit; a style sheet's padding comes on top of it.
void limitWidth(QWidget *widget, int width);

/// Makes the window large enough for the contents of its scroll area, within its screen.
void growToFit(QWidget *window, const QScrollArea *area);

/// Makes a window scrollable when it is larger than its screen. The layout then belongs to a widget
/// inside a scroll area, not to the window. Call this before each time the window is shown.
void fitToScreen(QWidget *window);

} // namespace FormFit

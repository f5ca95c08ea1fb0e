// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class QLabel;
class QScrollArea;
class QString;
class QWidget;

/// Sizes of parts of a form that depend on each other across its layouts.
namespace FormFit {

/// Makes labels that stand below each other, in rows of their own, equally wide.
void align(const QList<QLabel *> &labels);

/// The width of a text of one line in the font of the widget; spaces at its ends count.
int textWidth(const QWidget *widget, const QString &text);

/// Limits the width of a button or line edit; a style sheet's padding comes on top of it.
void limitWidth(QWidget *widget, int width);

/// Makes the window large enough for the contents of its scroll area, within its screen.
void growToFit(QWidget *window, const QScrollArea *area);

/// Has a window scroll what its screen has no room for. The layout of the window then is that of
/// another widget, which is in a scroll area. To be called before each time that it is shown.
void fitToScreen(QWidget *window);

} // namespace FormFit

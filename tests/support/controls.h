// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

/// Finds accessibility faults of a window's controls: for screen readers and for use without a
/// mouse. Each list has a line for each fault. Expects the window to be shown.
namespace Controls {

/// What a screen reader calls it; empty for a control without a name.
QString spokenNameOf(QWidget &control);

/// Those that can get the focus and have no name for a screen reader, or the same as another one of
/// their kind in the same group.
QStringList namelessOf(QWidget &window);

/// Where Tab goes up or back in the window.
QStringList tabOrderFaultsOf(QWidget &window);

/// The letters that several controls answer to together with Alt, or several actions of a menu.
QStringList sharedMnemonicsOf(QWidget &window);

} // namespace Controls

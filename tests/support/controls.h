// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

/// Finds accessibility faults of a window's controls: for screen readers and for use without a
/// mouse. Each list has one line per fault. Expects the window to be shown.
namespace Controls {

/// The name that a screen reader reads; empty for a control without a name.
QString spokenNameOf(QWidget &control);

/// The focusable controls without a name for a screen reader, or with the name of another control
/// of the same kind in the same group.
QStringList namelessOf(QWidget &window);

/// The places where Tab moves up or backwards in the window.
QStringList tabOrderFaultsOf(QWidget &window);

/// The letters that, with Alt, activate several controls, or several actions of a menu.
QStringList sharedMnemonicsOf(QWidget &window);

} // namespace Controls

// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

/// All texts that the user of a window can come to see or hear, as plain text: those of its widgets
/// and actions, of headers, items, tool tips and accessibility, each behind the path of the object
/// that shows it and a "|".
QStringList textsOf(const QWidget &window);

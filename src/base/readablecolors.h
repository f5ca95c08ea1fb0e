// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

// Palettes and style sheets set some of their colours and leave others as they were, so text may
// get a background that it was not designed for. These functions decide what can be read.

namespace OrvGui {

/// From 1, for the same colour, to 21, for black on white. Transparency is left out of account.
double contrast(const QColor &a, const QColor &b);

/// Whether text of that colour can be read on that background.
bool isReadable(const QColor &text, const QColor &background);

/// The colour itself if it can be read on the background, otherwise the nearest to it that can.
QColor readableOn(const QColor &background, const QColor &text);

/// Between two colours; a `share` of 0 is the first and 1 the second.
QColor mixed(const QColor &first, const QColor &second, double share);

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

// Palettes and style sheets may set the colour of a text without that of its background, or the
// reverse. These functions check and correct the contrast.

namespace OrvGui {

/// The contrast ratio, from 1 (same colour) to 21 (black on white). Transparency is ignored.
double contrast(const QColor &a, const QColor &b);

/// Whether the contrast of the text to the background is sufficient.
bool isReadable(const QColor &text, const QColor &background);

/// The colour itself if its contrast is sufficient, otherwise the nearest colour with which it is.
QColor readableOn(const QColor &background, const QColor &text);

/// A mixture of two colours; a `share` of 0 gives the first and 1 the second.
QColor mixed(const QColor &first, const QColor &second, double share);

} // namespace OrvGui

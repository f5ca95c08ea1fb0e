// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace OrvGui {

enum TextLength {
    LongestText = 4000, ///< beyond, laying it out takes longer than a user waits
    LongestName = 100   ///< of what makes a window as wide as it is
};

/// What a camera says of itself, made fit for a label, a cell or a title: one line, in which a
/// control character, a line separator or a change of the writing direction is a U+FFFD, cut off
/// where it gets longer than so many characters. Never needed for what goes back to the camera.
///
/// The result is still plain text. Where Qt guesses the format, as in tool tips and message boxes,
/// set `Qt::PlainText` or use `literally`.
QString cameraText(const QString &text, int longest = LongestText);

/// The same in full length, for what is printed.
QString printable(const QString &text);

/// As `cameraText` of UTF-8; empty for null.
QString cameraText(const char *utf8, int longest = LongestText);

/// Rich text that shows exactly this text, its markup included; empty when that is empty.
QString literally(const QString &text);

} // namespace OrvGui

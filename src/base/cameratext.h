// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace OrvGui {

enum TextLength {
    LongestText = 4000, ///< the layout of a longer text blocks the window noticeably
    LongestName = 100   ///< for texts that determine the width of a window
};

/// A text from the camera as one line for a label, a cell or a title. Control characters, line
/// separators and changes of the writing direction are replaced by U+FFFD. The text is truncated to
/// `longest` characters. Do not use it for texts that are written back to the camera.
///
/// The result is plain text. Where Qt detects the format, as in tool tips and message boxes, set
/// `Qt::PlainText` or use `literally`.
QString cameraText(const QString &text, int longest = LongestText);

/// The same without truncation, for printed output.
QString printable(const QString &text);

/// As `cameraText` of UTF-8; empty for null.
QString cameraText(const char *utf8, int longest = LongestText);

/// Rich text that shows the text as it is, markup included; empty for an empty text.
QString literally(const QString &text);

} // namespace OrvGui

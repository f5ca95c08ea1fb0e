// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QString>

/// The description of a feature in rich text: name, type, selectors, description, whether it is
/// streamable, and its limits, valid values or entries. One line each, separated by line breaks.
///
/// The camera's texts are contained byte by byte, as Latin-1, and are not escaped: use
/// `escapedDescription` for text that is displayed. GenICam exceptions are passed to the caller: a
/// description is never partial.
QString parameterDescription(GenApi::IValue *value);

/// The same lines for display as rich text: the camera's texts are decoded as UTF-8 where they are
/// valid UTF-8, and escaped. Empty for a feature without a description.
QString escapedDescription(GenApi::IValue *value);

namespace OrvGui {

class TreeLookAhead;

/// The same as `escapedDescription`, with values that the look-ahead has cached. When a value is
/// missing, lines that depend on values are left out and the result is false. `lookAhead` may be
/// null.
bool knownDescription(GenApi::IValue *value, TreeLookAhead *lookAhead, QString *text);

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QString>

/// What there is to know of a feature, in rich text: name, type, selectors, description, whether it
/// is streamable, and its limits, valid values or entries. One line each, separated by line breaks.
///
/// The camera's own texts stand in it byte by byte, as Latin-1, and are not escaped: show
/// `escapedDescription` where text is laid out. GenICam exceptions are the caller's: a description
/// is whole or not there.
QString parameterDescription(GenApi::IValue *value);

/// The same lines to be shown as rich text: the camera's own texts are decoded as UTF-8 where they
/// are valid UTF-8, and no markup. Empty for a feature that cannot be described.
QString escapedDescription(GenApi::IValue *value);

namespace OrvGui {

class TreeLookAhead;

/// As `escapedDescription`, but of what the look-ahead knows. While something is missing the lines
/// are left out that depend on values, and the result is false. `lookAhead` may be null.
bool knownDescription(GenApi::IValue *value, TreeLookAhead *lookAhead, QString *text);

} // namespace OrvGui

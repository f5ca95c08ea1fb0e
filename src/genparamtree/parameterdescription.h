// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QString>

/// What there is to know of a feature, in rich text: name, type, selectors, description, whether it
/// is streamable, and its limits, valid values or entries. One line each, separated by line breaks.
///
/// Made for the description panel of the parameter tree. GenICam exceptions are the caller's: a
/// description is whole or not there.
QString parameterDescription(GenApi::IValue *value);

// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <vector>

namespace OrvGui {

/// The selectors that a feature depends on, directly or through other selectors; the outermost
/// first. Each is listed once, even if selectors select each other. Reads no register. Throws
/// GenICam's exceptions.
std::vector<GenApi::IValue *> selectorsOf(GenApi::IValue *feature);

/// The features that a selector selects. Throws GenICam's exceptions.
std::vector<GenApi::IValue *> selectedBy(GenApi::IValue *selector);

bool isSelector(GenApi::IBase *feature);

} // namespace OrvGui

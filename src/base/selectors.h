// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <vector>

namespace OrvGui {

/// The selectors that decide which of its values a feature has, those of selectors among them; the
/// outermost first. A description may make selectors select each other: each is listed once. No
/// register is read. Throws the exceptions of GenICam.
std::vector<GenApi::IValue *> selectorsOf(GenApi::IValue *feature);

/// The features that a selector selects. Throws the exceptions of GenICam.
std::vector<GenApi::IValue *> selectedBy(GenApi::IValue *selector);

bool isSelector(GenApi::IBase *feature);

} // namespace OrvGui

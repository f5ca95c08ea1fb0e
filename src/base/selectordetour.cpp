// SPDX-License-Identifier: MIT
#include "base/selectordetour.h"

namespace OrvGui {

namespace {

thread_local int detours = 0;

} // namespace

SelectorDetour::SelectorDetour()
{
    ++detours;
}

SelectorDetour::~SelectorDetour()
{
    --detours;
}

bool SelectorDetour::isUnderWay()
{
    return detours > 0;
}

} // namespace OrvGui

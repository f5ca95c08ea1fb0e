// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappedcontrol.h"

namespace OrvGui {

/// A widget that is enabled and disabled with another one.
class MappedDependent final : public MappedControl
{
public:
    using MappedControl::MappedControl;

    void explain(const QString &) override {}
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappedcontrol.h"

class QComboBox;

namespace OrvGui {

/// A list with an item for each entry of an enumeration.
class MappedComboBox final : public MappedControl
{
public:
    MappedComboBox(const MapperContext::Pointer &context, OrvGenParam::Enum *param,
                   QComboBox *comboBox);

    void prepare() override;
    void show() override;
    void connectSignals() override;

private:
    void enableItems();
    void write(int index);

    OrvGenParam::Enum *const m_param;
    QComboBox *const m_comboBox;
};

} // namespace OrvGui

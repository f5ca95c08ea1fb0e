// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappedcontrol.h"

namespace OrvGui {

/// A tab for each entry of an enumeration.
class MappedTabs final : public MappedControl
{
public:
    MappedTabs(const MapperContext::Pointer &context, OrvGenParam::Enum *param, QTabWidget *tabs);

    void prepare() override;
    void show() override;
    void connectSignals() override;
    void explain(const QString &toolTip) override;

private:
    void fitTabCount();
    void write(int index);
    QHash<QString, int> &tabOfEntry() const;

    OrvGenParam::Enum *const m_param;
    QTabWidget *const m_tabs;
};

} // namespace OrvGui

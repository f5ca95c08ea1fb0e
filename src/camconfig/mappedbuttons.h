// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappedcontrol.h"

class QAbstractButton;
class QButtonGroup;

namespace OrvGui {

/// A group with a button for each entry of an enumeration.
class MappedButtons final : public MappedControl
{
public:
    /// Without a parameter, the buttons can only be enabled, disabled and get tool tips.
    MappedButtons(const MapperContext::Pointer &context, OrvGenParam::Enum *param,
                  QButtonGroup *buttons);

    QObject *object() const override;
    void prepare() override;
    void show() override;
    void connectSignals() override;
    void setEnabled(bool isEnabled) override;
    void setUsable(bool isUsable) override;
    void explain(const QString &toolTip) override;

private:
    void assign(QAbstractButton *button, const OrvGenParam::EnumEntry *entry, int unusedId);
    void checkCurrent();
    void write(QAbstractButton *button);
    qint64 valueOf(QAbstractButton *button) const;
    QAbstractButton *buttonOf(qint64 value) const;
    bool canChoose(qint64 value) const;

    OrvGenParam::Enum *const m_param;
    const QPointer<QButtonGroup> m_buttons;
};

} // namespace OrvGui

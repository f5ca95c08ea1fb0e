// SPDX-License-Identifier: MIT
#include "camconfig/mappedbuttons.h"

#include "camconfig/enumentries.h"
#include "camconfig/featuretooltip.h"
#include "camconfig/paramaccess.h"
#include "camconfig/showing.h"
#include "widgets/valuegrid.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam.h>

#include <QAbstractButton>
#include <QButtonGroup>

#include <limits>

using OrvGenParam::EnumEntry;

namespace OrvGui {

namespace {

/// The property that stores the value of a button whose entry's value cannot be an id: it exceeds
/// an int, or it is -1, which Qt uses for "no id".
constexpr char valueBeyondIds[] = "orvEntryValue";

bool isId(qint64 value)
{
    return value != -1 && value == ValueGrid::toInt(value);
}

} // namespace

MappedButtons::MappedButtons(const MapperContext::Pointer &context, OrvGenParam::Enum *param,
                             QButtonGroup *buttons)
    : MappedControl(context, nullptr), m_param(param), m_buttons(buttons)
{
}

QObject *MappedButtons::object() const
{
    return m_buttons;
}

void MappedButtons::prepare()
{
    const QList<QAbstractButton *> buttons = m_buttons->buttons();
    for (int i = 0; i < buttons.size(); ++i)
        assign(buttons[i], entryAt(m_param, i), std::numeric_limits<int>::min() + i);
    if (isWritable(m_param))
        setUsable(true);
    checkCurrent();
}

void MappedButtons::assign(QAbstractButton *button, const EnumEntry *entry, int unusedId)
{
    button->setVisible(entry);
    const qint64 value = entry ? entry->GetValue() : unusedId;
    m_buttons->setId(button, isId(value) ? static_cast<int>(value) : unusedId);
    button->setProperty(valueBeyondIds, isId(value) ? QVariant() : QVariant(value));
    if (entry)
        button->setText(captionOf(entry));
}

void MappedButtons::show()
{
    Showing showing(m_context, m_buttons);
    checkCurrent();
    if (!m_buttons || showing.isOver())
        return;
    for (uint32_t i = 0; i < m_param->GetEntryCount(); ++i) {
        const EnumEntry *entry = m_param->GetEntry(i);
        if (QAbstractButton *button = entry ? buttonOf(entry->GetValue()) : nullptr)
            button->setEnabled(m_context->read([=] { return entry->IsAvailable(); }));
    }
}

void MappedButtons::checkCurrent()
{
    int32_t error = OrvCam::Success;
    const qint64 value = m_context->read([&] { return m_param->GetIntValue(&error); });
    QAbstractButton *current = buttonOf(value);
    if (error != OrvCam::Success || !current)
        return;
    m_context->note(m_param, value);
    current->setChecked(true);
}

void MappedButtons::connectSignals()
{
    m_connections.add(
        m_buttons.data(),
        static_cast<void (QButtonGroup::*)(QAbstractButton *, bool)>(&QButtonGroup::buttonToggled),
        [this](QAbstractButton *button, bool isChecked) {
            if (isChecked)
                write(button);
        });
}

void MappedButtons::write(QAbstractButton *button)
{
    const qint64 value = valueOf(button);
    m_context->write(m_buttons, m_param, value,
                     [param = m_param, value] { return param->SetIntValue(value); });
}

void MappedButtons::setEnabled(bool isEnabled)
{
    if (!m_buttons)
        return;
    for (QAbstractButton *button : m_buttons->buttons())
        button->setEnabled(isEnabled);
}

void MappedButtons::setUsable(bool isUsable)
{
    if (!m_buttons)
        return;
    for (QAbstractButton *button : m_buttons->buttons()) {
        const qint64 value = valueOf(button);
        button->setEnabled(isUsable && m_context->read([=] { return canChoose(value); }));
    }
}

void MappedButtons::explain(const QString &toolTip)
{
    if (!m_buttons)
        return;
    for (QAbstractButton *button : m_buttons->buttons())
        FeatureToolTip::set(button, toolTip);
}

qint64 MappedButtons::valueOf(QAbstractButton *button) const
{
    const QVariant value = button->property(valueBeyondIds);
    return value.isValid() ? value.toLongLong() : m_buttons->id(button);
}

QAbstractButton *MappedButtons::buttonOf(qint64 value) const
{
    for (QAbstractButton *button : m_buttons->buttons()) {
        if (valueOf(button) == value)
            return button;
    }
    return nullptr;
}

/// False only for an entry that is not available at present.
bool MappedButtons::canChoose(qint64 value) const
{
    for (uint32_t i = 0; i < m_param->GetEntryCount(); ++i) {
        const EnumEntry *entry = m_param->GetEntry(i);
        if (entry && entry->GetValue() == value)
            return entry->IsAvailable();
    }
    return true;
}

} // namespace OrvGui

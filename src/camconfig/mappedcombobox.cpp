// SPDX-License-Identifier: MIT
#include "camconfig/mappedcombobox.h"

#include "camconfig/enumentries.h"
#include "camconfig/showing.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam.h>

#include <QComboBox>
#include <QStandardItemModel>

namespace OrvGui {

MappedComboBox::MappedComboBox(const MapperContext::Pointer &context, OrvGenParam::Enum *param,
                               QComboBox *comboBox)
    : MappedControl(context, comboBox), m_param(param), m_comboBox(comboBox)
{
}

void MappedComboBox::prepare()
{
    m_comboBox->clear();
    for (uint32_t i = 0; i < m_param->GetEntryCount(); ++i) {
        const OrvGenParam::EnumEntry *entry = m_param->GetEntry(i);
        m_comboBox->addItem(captionOf(entry), symbolicOf(entry));
    }
    m_comboBox->setCurrentIndex(-1);
    show();
}

void MappedComboBox::show()
{
    if (m_comboBox->count() == 0)
        return;
    int32_t error = OrvCam::Success;
    const QString current =
        m_context->read([&] { return QString::fromUtf8(m_param->GetSymbolicValue(&error)); });
    if (error == OrvCam::Success)
        m_context->note(m_param, current);
    Showing showing(m_context, m_comboBox);
    enableItems();
    if (error == OrvCam::Success)
        m_comboBox->setCurrentIndex(
            m_comboBox->findData(current, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void MappedComboBox::enableItems()
{
    const auto *items = qobject_cast<QStandardItemModel *>(m_comboBox->model());
    if (!items)
        return;
    for (int i = 0; i < m_comboBox->count(); ++i) {
        const OrvGenParam::EnumEntry *entry = entryAt(m_param, i);
        items->item(i)->setEnabled(entry && m_context->read([=] { return entry->IsAvailable(); }));
    }
}

void MappedComboBox::connectSignals()
{
    m_connections.add(m_comboBox,
                      static_cast<void (QComboBox::*)(int)>(&QComboBox::currentIndexChanged),
                      [this](int index) { write(index); });
}

void MappedComboBox::write(int index)
{
    if (index < 0)
        return;
    const QString entry = m_comboBox->itemData(index).toString();
    m_context->write(m_comboBox, m_param, entry, [param = m_param, entry] {
        return param->SetSymbolicValue(entry.toUtf8().constData());
    });
}

} // namespace OrvGui

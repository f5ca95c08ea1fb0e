// SPDX-License-Identifier: MIT
#include "camconfig/mappedlineedit.h"

#include <QIntValidator>
#include <QLineEdit>

namespace OrvGui {

MappedLineEdit::MappedLineEdit(const MapperContext::Pointer &context, OrvGenParam::Int *param,
                               QLineEdit *lineEdit)
    : MappedInt(context, param, lineEdit, nullptr), m_lineEdit(lineEdit)
{
}

void MappedLineEdit::show()
{
    showLimits();
    const Value value = readValue();
    const bool isTyping = m_lineEdit->hasFocus() && m_lineEdit->isModified();
    if (value.isKnown && !isTyping)
        m_lineEdit->setText(QString::number(value.number));
}

void MappedLineEdit::showLimits()
{
    const auto *validator = qobject_cast<const QIntValidator *>(m_lineEdit->validator());
    if (!validator)
        return;
    const Limits limits = readLimits();
    if (!limits.isKnown)
        return;
    const_cast<QIntValidator *>(validator)->setRange(limits.min, limits.max);
    explainLimits(limits);
}

void MappedLineEdit::connectSignals()
{
    m_connections.add(m_lineEdit, &QLineEdit::editingFinished, [this] { writeText(); });
}

void MappedLineEdit::writeText()
{
    bool ok = false;
    const int value = m_lineEdit->text().toInt(&ok);
    if (!ok || !m_lineEdit->isModified())
        return;
    // The error box takes the focus, which finishes the editing again.
    m_lineEdit->setModified(false);
    write(value);
}

} // namespace OrvGui

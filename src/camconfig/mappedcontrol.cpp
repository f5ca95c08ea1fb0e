// SPDX-License-Identifier: MIT
#include "camconfig/mappedcontrol.h"

#include "camconfig/featuretooltip.h"

#include <QWidget>

#include <utility>

namespace OrvGui {

MappedControl::MappedControl(MapperContext::Pointer context, QWidget *widget)
    : m_context(std::move(context)), m_widget(widget)
{
}

MappedControl::~MappedControl() = default;

QObject *MappedControl::object() const
{
    return m_widget;
}

void MappedControl::setEnabled(bool isEnabled)
{
    if (m_widget)
        m_widget->setEnabled(isEnabled);
}

void MappedControl::explain(const QString &toolTip)
{
    if (m_widget)
        FeatureToolTip::set(m_widget, toolTip);
}

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#include "camconfig/mappedtabs.h"

#include "camconfig/enumentries.h"
#include "camconfig/featuretooltip.h"
#include "camconfig/showing.h"

#include <OrvGenParam.h>

#include <QTabBar>
#include <QTabWidget>

using OrvGenParam::EnumEntry;

namespace OrvGui {

MappedTabs::MappedTabs(const MapperContext::Pointer &context, OrvGenParam::Enum *param,
                       QTabWidget *tabs)
    : MappedControl(context, tabs), m_param(param), m_tabs(tabs)
{
}

QHash<QString, int> &MappedTabs::tabOfEntry() const
{
    return m_context->tabs[QString::fromUtf8(m_param->GetName())];
}

void MappedTabs::prepare()
{
    fitTabCount();
    QHash<QString, int> tabOf;
    for (int i = 0; i < m_tabs->count(); ++i) {
        const EnumEntry *entry = entryAt(m_param, i);
        if (entry) {
            m_tabs->setTabText(i, captionOf(entry));
            tabOf.insert(symbolicOf(entry), i);
        } else {
            m_tabs->widget(i)->hide();
        }
    }
    tabOfEntry() = tabOf;
    show();
}

/// Removes surplus tabs, after all tabs that were removed for a previous enumeration are restored.
void MappedTabs::fitTabCount()
{
    QVector<QPointer<QWidget>> &removed = m_context->removedPages[m_tabs];
    while (!removed.isEmpty()) {
        if (QWidget *page = removed.takeLast())
            m_tabs->addTab(page, QString());
    }
    while (m_tabs->count() > static_cast<int>(m_param->GetEntryCount())) {
        const int last = m_tabs->count() - 1;
        removed.append(m_tabs->widget(last));
        m_tabs->widget(last)->hide();
        m_tabs->removeTab(last);
    }
}

void MappedTabs::show()
{
    const QHash<QString, int> tabOf = tabOfEntry();
    const QString current =
        m_context->read([this] { return QString::fromUtf8(m_param->GetSymbolicValue()); });
    {
        Showing showing(m_context, m_tabs);
        if (tabOf.contains(current))
            m_tabs->setCurrentIndex(tabOf.value(current));
        if (showing.isOver())
            return;
    }
    for (int i = 0; i < m_tabs->count(); ++i) {
        const EnumEntry *entry = entryAt(m_param, i);
        if (QWidget *page = entry ? m_tabs->widget(tabOf.value(symbolicOf(entry), -1)) : nullptr)
            page->setEnabled(m_context->read([=] { return entry->IsAvailable(); }));
    }
}

void MappedTabs::connectSignals()
{
    m_connections.add(m_tabs, &QTabWidget::currentChanged, [this](int index) { write(index); });
}

void MappedTabs::write(int index)
{
    if (index < 0)
        return;
    const QString entry = m_tabs->tabText(index);
    m_context->write(m_tabs, m_param, entry, [param = m_param, entry] {
        return param->SetSymbolicValue(entry.toUtf8().constData());
    });
}

// A tool tip of the whole widget would also appear over the pages.
void MappedTabs::explain(const QString &toolTip)
{
    if (m_widget)
        FeatureToolTip::set(m_tabs->tabBar(), toolTip);
}

} // namespace OrvGui

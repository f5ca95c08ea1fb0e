// SPDX-License-Identifier: MIT
#include "genparamtree/descriptionpanel.h"

#include "base/genicamstring.h"
#include "genparamtree/parameterdescription.h"

#include <Base/GCException.h>

#include <QScrollBar>

namespace OrvGui {

DescriptionPanel::DescriptionPanel(QWidget *parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
}

void DescriptionPanel::describe(GenApi::IValue *feature, TreeLookAhead *lookAhead)
{
    QString text;
    const bool isWhole = !feature || knownDescription(feature, lookAhead, &text);
    const bool isSameFeature = feature == m_feature;
    if (isSameFeature && !isWhole)
        return;
    if (isSameFeature && text == m_text)
        return;
    m_feature = feature;
    m_text = text;
    const int place = verticalScrollBar()->value();
    setHtml(text);
    if (isSameFeature)
        verticalScrollBar()->setValue(place);
}

QVariant DescriptionPanel::loadResource(int type, const QUrl &name)
{
    Q_UNUSED(type)
    Q_UNUSED(name)
    return QVariant();
}

} // namespace OrvGui

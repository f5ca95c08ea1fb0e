// SPDX-License-Identifier: MIT
#pragma once

#include "genparamtree/featurenamedelegate.h"

#include <QStringList>
#include <QTextLayout>

namespace OrvGui {

/// Paints the name column and highlights the search words in the names.
class FoundNameDelegate : public FeatureNameDelegate
{
    Q_OBJECT

public:
    using FeatureNameDelegate::FeatureNameDelegate;

    void setWords(const QStringList &words) { m_words = words; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    QVector<QTextLayout::FormatRange> marksIn(const QString &text,
                                              const QStyleOptionViewItem &option) const;

    QStringList m_words;
};

} // namespace OrvGui

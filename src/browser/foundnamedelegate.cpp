// SPDX-License-Identifier: MIT
#include "browser/foundnamedelegate.h"

#include "base/readablecolors.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace OrvGui {

namespace {

// The share of the highlight colour in the background of a match.
constexpr double markShare = 0.55;
const QColor markColor(0xff, 0xc1, 0x07);

} // namespace

QVector<QTextLayout::FormatRange>
FoundNameDelegate::marksIn(const QString &text, const QStyleOptionViewItem &option) const
{
    QTextCharFormat format;
    const QColor background =
        mixed(option.palette.color(QPalette::Active, QPalette::Base), markColor, markShare);
    format.setBackground(background);
    format.setForeground(
        readableOn(background, option.palette.color(QPalette::Active, QPalette::Text)));
    QVector<QTextLayout::FormatRange> marks;
    for (const QString &word : m_words) {
        for (int start = int(text.indexOf(word, 0, Qt::CaseInsensitive)); start >= 0;
             start = int(text.indexOf(word, start + word.size(), Qt::CaseInsensitive))) {
            QTextLayout::FormatRange mark;
            mark.start = start;
            mark.length = int(word.size());
            mark.format = format;
            marks.append(mark);
        }
    }
    return marks;
}

void FoundNameDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    const QRect area = style->subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, cell.widget) + 1;
    const QString text =
        cell.fontMetrics.elidedText(cell.text, cell.textElideMode, area.width() - 2 * margin);
    const QVector<QTextLayout::FormatRange> marks = marksIn(text, cell);
    if (marks.isEmpty())
        return FeatureNameDelegate::paint(painter, option, index);

    cell.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    QTextLayout layout(text, cell.font, painter->device());
    QTextOption direction;
    direction.setTextDirection(cell.direction);
    layout.setTextOption(direction);
    layout.setFormats(marks);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    layout.endLayout();
    const bool isSelected = cell.state & QStyle::State_Selected;
    const auto group = cell.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    painter->save();
    painter->setClipRect(area);
    painter->setPen(
        cell.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
    const qreal left = cell.direction == Qt::RightToLeft
                           ? area.right() + 1 - margin - line.naturalTextWidth()
                           : area.left() + margin;
    layout.draw(painter, QPointF(left, area.top() + (area.height() - line.height()) / 2));
    painter->restore();
}

} // namespace OrvGui

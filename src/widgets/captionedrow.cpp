// SPDX-License-Identifier: MIT
#include "widgets/captionedrow.h"

#include <QBoxLayout>
#include <QLabel>
#include <QSpacerItem>

namespace {

QLabel *createLabel(QWidget *parent, const QString &name)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    return label;
}

QSpacerItem *createStretch()
{
    return new QSpacerItem(40, 20, QSizePolicy::Minimum, QSizePolicy::Expanding);
}

void show(QLabel *label, const QString &text)
{
    label->setText(text);
    label->setVisible(!text.isEmpty());
}

} // namespace

CaptionedRow::CaptionedRow(QWidget *widget) : column(new QVBoxLayout(widget)), row(new QHBoxLayout)
{
    column->setObjectName(QStringLiteral("layoutV"));
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    row->setObjectName(QStringLiteral("layoutH"));
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    column->addLayout(row);
}

void CaptionedRow::setLeftText(const QString &text)
{
    if (!leftLabel) {
        leftLabel = createLabel(column->parentWidget(), QStringLiteral("labelLeft"));
        row->insertWidget(0, leftLabel);
    }
    show(leftLabel, text);
}

void CaptionedRow::setTopText(const QString &text)
{
    if (!topLabel) {
        topLabel = createLabel(column->parentWidget(), QStringLiteral("labelUpper"));
        topLabel->setAlignment(Qt::AlignCenter);
        column->insertItem(0, createStretch());
        column->insertWidget(1, topLabel);
        column->addItem(createStretch());
    }
    show(topLabel, text);
}

QString CaptionedRow::leftText() const
{
    return leftLabel ? leftLabel->text() : QString();
}

QString CaptionedRow::topText() const
{
    return topLabel ? topLabel->text() : QString();
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

/// Shows the rows of a device tree: the cameras' names as one line of plain text, and a mark on
/// cameras that cannot be opened, with the reason in a tool tip.
class CameraTreeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

    /// The reason why the camera of a row cannot be opened; empty when it can, and for an
    /// interface.
    static QString reason(const QModelIndex &index);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

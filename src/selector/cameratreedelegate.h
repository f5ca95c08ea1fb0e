// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

/// Shows the rows of a device tree: the cameras' names as plain text of one line, and a mark at the
/// cameras that cannot be opened, whose tool tip says why.
class CameraTreeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

    /// Why the camera of a row cannot be opened; empty when it can, and for an interface.
    static QString reason(const QModelIndex &index);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

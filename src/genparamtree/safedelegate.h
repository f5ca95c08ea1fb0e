// SPDX-License-Identifier: MIT
#pragma once

#include "genparamtree/genparamdelegate.h"

#include <QModelIndex>
#include <QPointer>

namespace OrvGui {

class TreeLookAhead;

/// The value column of the tree, which opens an editor wherever the current cell goes.
///
/// Only what the user has typed, stepped to or chosen is written: an editor that is touched is no
/// longer filled with the camera's value, a list that is dismissed closes, and the wheel scrolls
/// the tree. And the failure of a node is kept out of Qt's event loop, which cannot handle it: such
/// a node gets no editor, or one without its current value.
///
/// With a look-ahead nothing here waits for the camera: an editor is made of what is known, and
/// filled when its value is known.
class SafeDelegate : public GenParamDelegate
{
    Q_OBJECT

public:
    using GenParamDelegate::GenParamDelegate;

    /// Null for none.
    void setLookAhead(TreeLookAhead *lookAhead) { m_lookAhead = lookAhead; }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;
    QString displayText(const QVariant &value, const QLocale &locale) const override;

protected:
    bool ask(const GenApi::CValuePtr &node, const std::function<void()> &questions) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    void watch(QWidget *editor, const QModelIndex &index) const;
    static QWidget *named(QWidget *editor, const QModelIndex &index);
    static QWidget *createNote(QWidget *parent);
    bool fill(QWidget *editor, const QModelIndex &index) const;

    /// The cell whose value `displayText` is asked for.
    mutable QModelIndex m_painted;
    mutable bool m_hasMissed = false; ///< something that `ask` was to find out
    QPointer<TreeLookAhead> m_lookAhead;
};

} // namespace OrvGui

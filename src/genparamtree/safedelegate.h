// SPDX-License-Identifier: MIT
#pragma once

#include "genparamtree/genparamdelegate.h"

#include <QModelIndex>
#include <QPointer>

namespace OrvGui {

class TreeLookAhead;

/// The delegate of the tree's value column, which opens an editor on the current cell.
///
/// Writes only values that the user has typed, stepped to or chosen: a touched editor is no longer
/// filled with the camera's value, a dismissed list closes without a write, and the wheel scrolls
/// the tree. Exceptions of nodes do not reach Qt's event loop, which cannot handle them: such a
/// node gets no editor, or one without its current value.
///
/// With a look-ahead the delegate never blocks for the camera: it creates the editor from cached
/// data, and fills it when its value is cached.
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

    /// The cell that is being painted, for `displayText`.
    mutable QModelIndex m_painted;
    mutable bool m_hasMissed = false; ///< a value that `ask` needs is not cached
    QPointer<TreeLookAhead> m_lookAhead;
};

} // namespace OrvGui

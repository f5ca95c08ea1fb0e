// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Pointer.h>

#include <QStyledItemDelegate>

#include <functional>
#include <utility>

class QComboBox;

/// Edits the values of a `GenParamTreeModel` in place, each with the widget that fits the node:
/// spin boxes with the node's limits, increment and unit, combo boxes for entries and lists of
/// values, a button for commands, line edits for addresses and texts.
///
/// Install it on the value column. It reads limits and entries from the node, but writes only
/// through the model. Combo boxes open at once and commit on the first change; a click outside ends
/// the other editors. GenICam exceptions during the creation or filling of an editor are passed to
/// the caller.
class GenParamDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit GenParamDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

protected:
    /// Runs a function that reads nodes to fill an editor. Returns false when a value is not
    /// cached; the editor then stays unchanged.
    virtual bool ask(const GenApi::CValuePtr &node, const std::function<void()> &questions) const;

    /// Opens the list of entries, unless it is open or a choice has been made.
    static void openList(QComboBox *comboBox);

private:
    class MouseTracker;
    typedef QList<std::pair<QString, QVariant>> ComboBoxEntries;

    QWidget *createIntegerEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                 const QModelIndex &index, const GenApi::CValuePtr &node) const;
    QWidget *createFloatEditor(QWidget *parent, const QStyleOptionViewItem &option,
                               const QModelIndex &index, const GenApi::CValuePtr &node) const;
    QWidget *createBooleanEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                 const QModelIndex &index, const GenApi::CValuePtr &node) const;
    QWidget *createEnumerationEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                     const QModelIndex &index, const GenApi::CValuePtr &node) const;
    QWidget *createCommandEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                 const QModelIndex &index, const GenApi::CValuePtr &node) const;
    QWidget *createIPAddressEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                   const QModelIndex &index, const GenApi::CValuePtr &node) const;

    void setIntegerEditorData(QWidget *editor, const QModelIndex &index,
                              const GenApi::CValuePtr &node) const;
    void setFloatEditorData(QWidget *editor, const QModelIndex &index,
                            const GenApi::CValuePtr &node) const;
    void setBooleanEditorData(QWidget *editor, const QModelIndex &index,
                              const GenApi::CValuePtr &node) const;
    void setEnumerationEditorData(QWidget *editor, const QModelIndex &index,
                                  const GenApi::CValuePtr &node) const;
    void setIPAddressEditorData(QWidget *editor, const QModelIndex &index,
                                const GenApi::CValuePtr &node) const;

    static void openListAt(QComboBox *comboBox, const QVariant &value);
    QComboBox *createComboBox(QWidget *parent, const ComboBoxEntries &entries) const;
    void captureMouseForEditor(QWidget *editor) const;
};

/// Ends editing when the user clicks outside the editor, in any window: filters all events of the
/// application for the first such press, and takes the focus from the editor. Destroyed with the
/// editor.
class GenParamDelegate::MouseTracker : public QObject
{
public:
    explicit MouseTracker(QWidget *editor);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_editor;
};

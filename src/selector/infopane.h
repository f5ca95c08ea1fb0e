// SPDX-License-Identifier: MIT
#pragma once

#include "base/connections.h"

#include <QString>

class QStandardItemModel;
class QTreeView;

/// A list of facts, each with a label, in a tree view of two columns. The user can change the width
/// of the labels' column, which then stays as it is when other facts are shown.
class InfoPane
{
public:
    /// The view outlives the pane.
    explicit InfoPane(QTreeView *view);

    /// The height of the view that shows so many facts without a scroll bar. Nothing is shown yet.
    int heightOf(int rows) const;

    void clear();

    /// Replaces what is shown. The pane takes the model, which `makeFacts` has made.
    void show(QStandardItemModel *facts);

    /// An empty list of facts.
    static QStandardItemModel *makeFacts();

    /// A value that is wrong is marked.
    static void add(QStandardItemModel *facts, const QString &label, const QString &value,
                    bool isWrong = false);

private:
    void halveColumns();
    void showTextsWhole();
    bool hasOwnWidth() const;
    int widestText(int column) const;
    void viewShown();

    QTreeView *m_view;
    int m_width = 0;          ///< of the labels' column, when something was shown last
    int m_ownWidth = 0;       ///< of the same, as the pane has set it
    bool m_isUnshown = false; ///< what is shown came while the view had no size yet
    Connections m_connections;
};

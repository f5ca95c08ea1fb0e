// SPDX-License-Identifier: MIT
#pragma once

#include "base/connections.h"

#include <QString>

class QStandardItemModel;
class QTreeView;

/// A list of facts, each with a label, in a tree view with two columns. The user can change the
/// width of the labels' column, which is kept when other facts are shown.
class InfoPane
{
public:
    /// The view outlives the pane.
    explicit InfoPane(QTreeView *view);

    /// The height of the view for that number of facts without a scroll bar. Call it before facts
    /// are shown.
    int heightOf(int rows) const;

    void clear();

    /// Replaces the facts. Takes ownership of the model, which `makeFacts` has created.
    void show(QStandardItemModel *facts);

    /// Creates an empty list of facts.
    static QStandardItemModel *makeFacts();

    /// Adds a fact; a wrong value is highlighted.
    static void add(QStandardItemModel *facts, const QString &label, const QString &value,
                    bool isWrong = false);

private:
    void halveColumns();
    void showTextsWhole();
    bool hasOwnWidth() const;
    int widestText(int column) const;
    void viewShown();

    QTreeView *m_view;
    int m_width = 0;          ///< of the labels' column, when facts were shown last
    int m_ownWidth = 0;       ///< the width that the pane has set itself
    bool m_wasHidden = false; ///< the facts were set while the view was hidden
    Connections m_connections;
};

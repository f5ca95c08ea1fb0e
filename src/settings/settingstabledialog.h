// SPDX-License-Identifier: MIT
#pragma once

#include "settings/settingstable.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QPushButton;
class QTreeView;

namespace OrvGui {

/// Shows a message about features, with a table of them that can be copied.
class SettingsTableDialog : public QDialog
{
    Q_OBJECT

public:
    /// Is deleted when it is closed.
    SettingsTableDialog(const QString &title, QWidget *parent);

    /// Without rows there is no table.
    void setContents(const QString &text, const QStringList &headers,
                     const SettingsTable::Rows &rows);

    /// Accepts the dialog.
    QPushButton *addAcceptButton(const QString &text);

    /// Leaves it open.
    QPushButton *addButton(const QString &text);

    /// Rejects it. There are no more buttons after it.
    void addCloseButton(bool isCancel = false);

private:
    void copy() const;

    QLabel *const m_text;
    SettingsTable *const m_table;
    QTreeView *const m_view;
    QDialogButtonBox *const m_buttons;
};

} // namespace OrvGui

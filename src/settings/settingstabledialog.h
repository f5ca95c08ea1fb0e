// SPDX-License-Identifier: MIT
#pragma once

#include "settings/settingstable.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QPushButton;
class QTreeView;

namespace OrvGui {

/// Shows a message about features, with a table that can be copied.
class SettingsTableDialog : public QDialog
{
    Q_OBJECT

public:
    /// The dialog deletes itself when it is closed.
    SettingsTableDialog(const QString &title, QWidget *parent);

    /// Without rows the table is hidden.
    void setContents(const QString &text, const QStringList &headers,
                     const SettingsTable::Rows &rows);

    /// Adds a button that accepts the dialog.
    QPushButton *addAcceptButton(const QString &text);

    /// Adds a button that leaves the dialog open.
    QPushButton *addButton(const QString &text);

    /// Adds a button that rejects the dialog. It must be the last one.
    void addCloseButton(bool isCancel = false);

private:
    void copy() const;

    QLabel *const m_text;
    SettingsTable *const m_table;
    QTreeView *const m_view;
    QDialogButtonBox *const m_buttons;
};

} // namespace OrvGui

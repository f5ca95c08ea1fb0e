// SPDX-License-Identifier: MIT
#include "settings/settingstabledialog.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace OrvGui {

namespace {

constexpr int widestColumn = 60; // characters, initially
constexpr int mostRows = 18;     // initially

} // namespace

SettingsTableDialog::SettingsTableDialog(const QString &title, QWidget *parent)
    : QDialog(parent)
    , m_text(new QLabel(this))
    , m_table(new SettingsTable({}, this))
    , m_view(new QTreeView(this))
    , m_buttons(new QDialogButtonBox(this))
{
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setObjectName(QStringLiteral("lblText"));
    m_view->setObjectName(QStringLiteral("tableView"));
    m_view->setAccessibleName(title);
    m_view->setModel(m_table);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setTextElideMode(Qt::ElideMiddle);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);

    auto *copyAction = new QAction(tr("Copy"), m_view);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, &SettingsTableDialog::copy);
    m_view->addAction(copyAction);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_buttons);
}

void SettingsTableDialog::setContents(const QString &text, const QStringList &headers,
                                      const SettingsTable::Rows &rows)
{
    m_text->setText(text);
    m_table->setRows(headers, rows);
    m_view->setVisible(!rows.isEmpty());
    const int character = fontMetrics().averageCharWidth();
    int width = 4 * character;
    for (int column = 0; column < headers.size(); ++column) {
        m_view->resizeColumnToContents(column);
        const int fit =
            std::min(m_view->columnWidth(column) + 2 * character, widestColumn * character);
        m_view->setColumnWidth(column, fit);
        width += fit;
    }
    const int count = std::min(int(rows.size()) + 3, mostRows);
    m_view->setMinimumSize(std::min(width, 70 * character), 5 * fontMetrics().height());
    resize(QSize(width, 0) +
           QSize(0, rows.isEmpty() ? 0 : int(count * 1.4 * fontMetrics().height()) + 90));
    resize(size().expandedTo(sizeHint().boundedTo(QSize(width, sizeHint().height()))));
}

QPushButton *SettingsTableDialog::addAcceptButton(const QString &text)
{
    QPushButton *button = m_buttons->addButton(text, QDialogButtonBox::AcceptRole);
    button->setDefault(true);
    return button;
}

QPushButton *SettingsTableDialog::addButton(const QString &text)
{
    QPushButton *button = m_buttons->addButton(text, QDialogButtonBox::ActionRole);
    button->setAutoDefault(false);
    return button;
}

void SettingsTableDialog::addCloseButton(bool isCancel)
{
    m_buttons->addButton(isCancel ? QDialogButtonBox::Cancel : QDialogButtonBox::Close);
}

/// The selected rows, or all.
void SettingsTableDialog::copy() const
{
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    if (rows.isEmpty()) {
        for (int row = 0; row < m_table->rowCount(); ++row)
            rows << m_table->index(row, 0);
    }
    QApplication::clipboard()->setText(m_table->text(rows));
}

} // namespace OrvGui

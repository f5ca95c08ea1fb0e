// SPDX-License-Identifier: MIT
#include "settings/settingstable.h"

#include "base/cameratext.h"

#include <QFont>

namespace OrvGui {

SettingsTable::SettingsTable(const QStringList &headers, QObject *parent)
    : QAbstractTableModel(parent), m_headers(headers)
{
}

void SettingsTable::setRows(const QStringList &headers, const Rows &rows)
{
    beginResetModel();
    m_headers = headers;
    m_rows = rows;
    endResetModel();
}

QString SettingsTable::text(const QModelIndexList &rows) const
{
    QString text = m_headers.join(QLatin1Char('\t')) + QLatin1Char('\n');
    for (const QModelIndex &index : rows) {
        QStringList cells;
        for (const QString &cell : m_rows.value(index.row()))
            cells << printable(cell);
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

int SettingsTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int SettingsTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_headers.size());
}

QVariant SettingsTable::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return QVariant();
    const QString cell = m_rows[index.row()].value(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return cell.isNull() ? tr("(none)") : cameraText(cell);
    case Qt::ToolTipRole:
        return literally(cameraText(cell));
    case Qt::FontRole: {
        QFont font; // the same colour as the others, for readability
        font.setItalic(true);
        return cell.isNull() ? QVariant(font) : QVariant();
    }
    default:
        return QVariant();
    }
}

QVariant SettingsTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_headers.value(section);
    return orientation == Qt::Horizontal && role == Qt::TextAlignmentRole
               ? QVariant(int(Qt::AlignLeft | Qt::AlignVCenter))
               : QVariant();
}

} // namespace OrvGui

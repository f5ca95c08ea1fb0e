// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QVector>

namespace OrvGui {

/// Rows of texts about features. A null text is a missing value.
class SettingsTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    using Row = QStringList;
    using Rows = QVector<Row>;

    explicit SettingsTable(const QStringList &headers, QObject *parent = nullptr);

    void setRows(const QStringList &headers, const Rows &rows);

    /// These rows with a header line, the columns separated by tabs.
    QString text(const QModelIndexList &rows) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QStringList m_headers;
    Rows m_rows;
};

} // namespace OrvGui

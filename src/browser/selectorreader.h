// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/INodeMap.h>
#include <GenApi/IValue.h>

#include <QStringList>
#include <QThread>
#include <QVector>

namespace OrvGui {

/// Reads features for all values of one of their selectors on a separate thread, and restores the
/// selector.
///
/// The selector is moved while the thread runs: prevent all writes to the camera during that time,
/// and keep a `SelectorDetour` on the GUI thread. The node map must outlive the reader.
class SelectorReader : public QThread
{
    Q_OBJECT

public:
    struct Cell
    {
        QString text;  ///< in GenICam's format; null when there is no value
        QString shown; ///< in the format of the tree
        bool isWritable = false;
    };
    struct Row
    {
        QString entry;
        QString refusal; ///< the reason why the selector cannot have this value
        QVector<Cell> cells;
    };

    SelectorReader(GenApi::INodeMap *nodeMap, GenApi::IValue *selector,
                   const QVector<GenApi::IValue *> &features, QObject *parent = nullptr);

    /// Stops the reading; blocks until the selector is restored.
    ~SelectorReader() override;

    /// Call these after the thread has finished.
    const QVector<Row> &rows() const { return m_rows; }

    /// The error that stopped the reading; null for none.
    QString failure() const { return m_failure; }

    /// The feature's value at the present values of its selectors.
    static Cell read(GenApi::IValue *feature);

protected:
    void run() override;

private:
    QStringList entries() const;
    void readRows();
    Row readRow(const QString &entry) const;

    GenApi::INodeMap *const m_nodeMap;
    GenApi::IValue *const m_selector;
    const QVector<GenApi::IValue *> m_features;
    QVector<Row> m_rows;
    QString m_failure;
};

} // namespace OrvGui

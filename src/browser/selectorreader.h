// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/INodeMap.h>
#include <GenApi/IValue.h>

#include <QStringList>
#include <QThread>
#include <QVector>

namespace OrvGui {

/// Reads features for all values of one of their selectors, on a thread of its own, and puts the
/// selector back.
///
/// While it runs the selector is elsewhere: let nothing be written to the camera, and have a
/// `SelectorDetour` on the thread of the windows. What it reads of must outlive it.
class SelectorReader : public QThread
{
    Q_OBJECT

public:
    struct Cell
    {
        QString text;  ///< as GenICam's; null when there is no value
        QString shown; ///< as the tree's
        bool isWritable = false;
    };
    struct Row
    {
        QString entry;
        QString refusal; ///< why the selector cannot be moved there
        QVector<Cell> cells;
    };

    SelectorReader(GenApi::INodeMap *nodeMap, GenApi::IValue *selector,
                   const QVector<GenApi::IValue *> &features, QObject *parent = nullptr);

    /// Ends the reading; waits until the selector is back.
    ~SelectorReader() override;

    /// When it has finished.
    const QVector<Row> &rows() const { return m_rows; }

    /// What has ended the reading; null if nothing has.
    QString failure() const { return m_failure; }

    /// Of the feature, where its selectors are now.
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

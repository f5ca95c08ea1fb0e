// SPDX-License-Identifier: MIT
#pragma once

#include "base/selectordetour.h"
#include "base/selectorsinuse.h"
#include "browser/browsermodel.h"
#include "browser/selectorreader.h"

#include <QDialog>

#include <memory>
#include <optional>

class GenParamTreeModel;
class QLabel;
class QPushButton;
class QTableWidget;

namespace OrvGui {

/// Shows the values of features for all values of one of their selectors: a row for each value of
/// the selector, a column for each feature.
///
/// The values are read in the background. The camera's other windows are blocked during that time,
/// because their writes would go to the wrong selection. A value is written when it is entered; a
/// refused one is marked with the reason.
class SelectorTable : public QDialog
{
    Q_OBJECT

public:
    /// The node map and the model must outlive the table.
    SelectorTable(GenApi::INodeMap *nodeMap, GenParamTreeModel &features, BrowserModel &shown,
                  GenApi::IValue *selector, const QVector<GenApi::IValue *> &columns,
                  QWidget *parent);
    ~SelectorTable() override;

    bool isReading() const { return m_detour.has_value(); }

public slots:
    void readAgain();
    void reject() override;

private:
    friend class SelectorTableDelegate;

    void buildWindow();
    void showRows();
    void showCell(int row, int column, const SelectorReader::Cell &cell);
    void mark(int row, int column, const QString &reason);
    void enter(int row, int column, const QString &text);
    void endReading();

    GenApi::INodeMap *const m_nodeMap;
    GenParamTreeModel &m_features;
    BrowserModel &m_shown;
    GenApi::IValue *const m_selector;
    const QVector<GenApi::IValue *> m_columns;
    QTableWidget *m_table;
    QLabel *m_note;
    QPushButton *m_readAgain;
    QStringList m_entries;
    bool m_isToBeClosed = false;
    // Used during the reading only.
    std::optional<SelectorDetour> m_detour;
    std::optional<SelectorsInUse> m_inUse;
    std::unique_ptr<SelectorReader> m_reader;
};

} // namespace OrvGui

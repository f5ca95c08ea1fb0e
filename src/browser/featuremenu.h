// SPDX-License-Identifier: MIT
#pragma once

#include "base/featuremetatype.h"

#include <GenApi/IValue.h>

#include <QMenu>
#include <QModelIndex>
#include <QVector>

class GenParamTreeModel;

namespace OrvGui {

class BrowserModel;

/// The context menu of a row of the browser.
///
/// It copies and refreshes itself; for the other entries it emits signals.
class FeatureMenu : public QMenu
{
    Q_OBJECT

public:
    /// The row must be one of the model.
    FeatureMenu(const QModelIndex &row, BrowserModel &shown, GenParamTreeModel &features,
                bool isFavourite, QWidget *parent);

signals:
    void featureWanted(GenApi::IValue *feature);
    void favouriteWanted(GenApi::IValue *feature, bool isFavourite);
    void putBackWanted(GenApi::IValue *feature);

    /// The values of the features for all values of their selector.
    void tableWanted(GenApi::IValue *selector, const QVector<GenApi::IValue *> &features);

    /// Of the row and all below it.
    void expansionWanted(const QPersistentModelIndex &row, bool isExpanded);

private:
    void addCopying();
    void addSelection();
    void addMarks(bool isFavourite);
    void addCategoryActions();
    void addTable(GenApi::IValue *selector, const QVector<GenApi::IValue *> &features);
    void addWay(QMenu *menu, const QString &text, GenApi::IValue *feature);
    void readAgain(const QModelIndex &row);

    const QPersistentModelIndex m_row;
    BrowserModel &m_shown;
    GenParamTreeModel &m_features;
    GenApi::IValue *const m_feature;
};

} // namespace OrvGui

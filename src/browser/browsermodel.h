// SPDX-License-Identifier: MIT
#pragma once

#include "browser/featuremarks.h"
#include "browser/featuresearch.h"

#include <GenApi/IValue.h>

#include <QAbstractProxyModel>
#include <QHash>
#include <QIcon>
#include <QVector>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace OrvGui {

class KnownValuesModel;

/// The feature tree as the browser shows it: with a category of favourites at the top, filtered by
/// a search, and with marks on features that were changed or refused a write.
///
/// It has the rows that the tree has at its visibility level. The category of favourites is not a
/// feature of the camera; its `Qt::UserRole` is the root category.
class BrowserModel : public QAbstractProxyModel
{
    Q_OBJECT

public:
    using Features = FeatureSearch::Features;

    /// Takes ownership of the values model, which has its source model.
    BrowserModel(KnownValuesModel *source, GenApi::IValue *root, QObject *parent);
    ~BrowserModel() override;

    /// The icon of the favourites.
    static QIcon star();

    FeatureMarks &marks() { return *m_marks; }
    FeatureSearch &search() { return m_search; }

    /// Features that the tree does not show are left out of the favourites.
    void setFavourites(const QVector<GenApi::IValue *> &favourites);

    /// Shows only those features, with their categories. A category that is in the list and has no
    /// listed features below it keeps all its rows. Shows all features without a list.
    void narrow(const std::optional<Features> &features);
    bool isNarrowedTo(const std::optional<Features> &features) const;

    /// The name cells of the first categories with search results; at most so many that they
    /// contain that number of rows.
    QModelIndexList foundCategories(int maxRows) const;

    /// The name cell of the first search result, not counting favourites.
    QModelIndex firstFound() const;

    /// The name cells of all shown categories.
    QModelIndexList categories() const;

    bool isFavourites(const QModelIndex &index) const;
    bool isBelowFavourites(const QModelIndex &index) const;

    /// The name cell of the feature's first row, not counting favourites; invalid when the feature
    /// is not shown.
    QModelIndex place(const GenApi::IValue *feature) const;

    /// Frozen features keep showing their current values until they are thawed.
    void freeze(const QVector<GenApi::IValue *> &features);
    void thaw();

    /// Updates all rows of the feature.
    void refresh(const GenApi::IValue *feature);

    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    using QObject::parent;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex mapToSource(const QModelIndex &index) const override;
    QModelIndex mapFromSource(const QModelIndex &sourceIndex) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct Row
    {
        GenApi::IValue *feature = nullptr;
        Row *category = nullptr;
        const Row *original = nullptr; ///< of a favourite: the row in the ordinary tree
        int sourceRow = -1;
        bool isCategory = false;
        bool isFound = false; ///< of a category: a row below it is a search result
        int shownRow = -1;    ///< -1 for a hidden row
        std::vector<std::unique_ptr<Row>> rows;
        std::vector<Row *> shownRows;
    };

    void follow();
    std::unique_ptr<Row> read() const;
    void readRows(const QModelIndex &sourceParent, Row *category) const;
    void addFavourites(Row *root) const;
    void rebuild();
    void adopt(std::unique_ptr<Row> root);
    void noteRows(Row *row);
    void changeLayout(const std::function<void()> &change);
    const Row *counterpart(const Row *former) const;

    void show(Row *category);
    bool keepFound(Row *category);
    void showAll(Row *category);

    const Row *rowOf(const QModelIndex &index) const;
    QModelIndex indexOf(const Row *row, int column) const;
    QModelIndex sourceOf(const Row *row, int column) const;
    QVariant favouritesData(int column, int role) const;
    QVariant nameToolTip(const QModelIndex &index, const GenApi::IValue *feature) const;
    QVariant valueToolTip(const GenApi::IValue *feature) const;
    void forwardChange(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                       const QVector<int> &roles);

    KnownValuesModel *const m_values;
    GenApi::IValue *const m_rootFeature;
    FeatureMarks *m_marks;
    FeatureSearch m_search;
    QVector<GenApi::IValue *> m_favourites;
    std::optional<Features> m_narrowed;
    std::unique_ptr<Row> m_root;
    std::unique_ptr<Row> m_former; ///< while persistent indexes are moved from it
    Row *m_favouritesRow = nullptr;
    QHash<const GenApi::IValue *, QVector<Row *>> m_rowsOf;
    QHash<const GenApi::IValue *, QVariant> m_frozen;
};

} // namespace OrvGui

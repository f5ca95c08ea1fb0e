// SPDX-License-Identifier: MIT
#include "browser/browsermodel.h"

#include "base/featuremetatype.h"
#include "genparamtree/genparamtreemodel.h"
#include "genparamtree/knownvaluesmodel.h"
#include "genparamtree/orvgenparamtreeview_p.h"

#include <GenApi/GenApi.h>

#include <QApplication>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace OrvGui {

namespace {

constexpr int nameColumn = 0;
constexpr int valueColumn = 1;

bool isCategoryFeature(GenApi::IValue *feature)
{
    try {
        return feature && feature->GetNode()->GetPrincipalInterfaceType() == GenApi::intfICategory;
    } catch (const GenICam::GenericException &) {
        return false;
    }
}

} // namespace

BrowserModel::BrowserModel(KnownValuesModel *source, GenApi::IValue *root, QObject *parent)
    : QAbstractProxyModel(parent)
    , m_values(source)
    , m_rootFeature(root)
    , m_marks(new FeatureMarks(*qobject_cast<GenParamTreeModel *>(source->sourceModel()), this))
    , m_search(root)
{
    source->setParent(this);
    setSourceModel(source);
    adopt(read());
    follow();
    connect(m_marks, &FeatureMarks::changed, this, &BrowserModel::refresh);
}

BrowserModel::~BrowserModel() = default;

void BrowserModel::follow()
{
    connect(m_values, &QAbstractItemModel::dataChanged, this, &BrowserModel::forwardChange);
    connect(m_values, &QAbstractItemModel::layoutChanged, this, &BrowserModel::rebuild);
    // The tree inserts and removes rows only when a view holds an index that cannot be
    // distinguished from another one; otherwise it changes its layout.
    connect(m_values, &QAbstractItemModel::rowsInserted, this, &BrowserModel::rebuild);
    connect(m_values, &QAbstractItemModel::rowsRemoved, this, &BrowserModel::rebuild);
    connect(m_values, &QAbstractItemModel::modelReset, this, &BrowserModel::rebuild);
}

QIcon BrowserModel::star()
{
    const int extent = 64;
    QPixmap pixmap(extent, extent);
    pixmap.fill(Qt::transparent);
    QPolygonF shape;
    const int points = 10;
    for (int point = 0; point < points; ++point) {
        const double radius = point % 2 ? 0.2 : 0.48;
        const double angle = (point - 2.5) * 2 * M_PI / points;
        shape << QPointF(0.5 + radius * std::cos(angle), 0.52 + radius * std::sin(angle)) * extent;
    }
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xe0, 0x9a, 0x00));
    painter.drawPolygon(shape);
    return QIcon(pixmap);
}

// Structure

std::unique_ptr<BrowserModel::Row> BrowserModel::read() const
{
    auto root = std::make_unique<Row>();
    root->isCategory = true;
    readRows(QModelIndex(), root.get());
    return root;
}

void BrowserModel::readRows(const QModelIndex &sourceParent, Row *category) const
{
    const int count = m_values->rowCount(sourceParent);
    category->rows.reserve(static_cast<std::size_t>(count) + 1);
    for (int sourceRow = 0; sourceRow < count; ++sourceRow) {
        const QModelIndex source = m_values->index(sourceRow, nameColumn, sourceParent);
        auto row = std::make_unique<Row>();
        row->feature = featureOf(source);
        row->category = category;
        row->sourceRow = sourceRow;
        row->isCategory = isCategoryFeature(row->feature);
        if (row->isCategory)
            readRows(source, row.get());
        category->rows.push_back(std::move(row));
    }
}

void BrowserModel::noteRows(Row *row)
{
    if (row->feature)
        m_rowsOf[row->feature].append(row);
    for (const auto &child : row->rows)
        noteRows(child.get());
}

void BrowserModel::addFavourites(Row *root) const
{
    auto group = std::make_unique<Row>();
    group->category = root;
    group->isCategory = true;
    for (GenApi::IValue *feature : m_favourites) {
        const QVector<Row *> originals = m_rowsOf.value(feature);
        if (originals.isEmpty())
            continue;
        auto row = std::make_unique<Row>();
        row->feature = feature;
        row->category = group.get();
        row->original = originals.first();
        group->rows.push_back(std::move(row));
    }
    if (!group->rows.empty())
        root->rows.insert(root->rows.begin(), std::move(group));
}

void BrowserModel::adopt(std::unique_ptr<Row> root)
{
    m_rowsOf.clear();
    m_favouritesRow = nullptr;
    noteRows(root.get());
    addFavourites(root.get());
    m_root = std::move(root);
    if (!m_root->rows.empty() && m_root->rows.front()->sourceRow < 0) {
        m_favouritesRow = m_root->rows.front().get();
        for (const auto &row : m_favouritesRow->rows)
            m_rowsOf[row->feature].append(row.get());
    }
    show(m_root.get());
}

void BrowserModel::rebuild()
{
    changeLayout([this] {
        m_former = std::move(m_root);
        adopt(read());
    });
    m_former.reset();
}

void BrowserModel::changeLayout(const std::function<void()> &change)
{
    emit layoutAboutToBeChanged();
    const QModelIndexList indexes = persistentIndexList();
    change();
    QModelIndexList moved;
    for (const QModelIndex &index : indexes) {
        const auto *row = static_cast<const Row *>(index.internalPointer());
        moved << indexOf(m_former ? counterpart(row) : row, index.column());
    }
    changePersistentIndexList(indexes, moved);
    emit layoutChanged();
}

/// Null when there is none.
const BrowserModel::Row *BrowserModel::counterpart(const Row *former) const
{
    if (!former->category)
        return m_root.get();
    const Row *category = counterpart(former->category);
    if (!category)
        return nullptr;
    const auto found =
        std::find_if(category->rows.begin(), category->rows.end(),
                     [former](const auto &row) { return row->feature == former->feature; });
    return found == category->rows.end() ? nullptr : found->get();
}

void BrowserModel::setFavourites(const QVector<GenApi::IValue *> &favourites)
{
    if (favourites == m_favourites)
        return;
    m_favourites = favourites;
    rebuild();
}

bool BrowserModel::isNarrowedTo(const std::optional<Features> &features) const
{
    return features == m_narrowed;
}

void BrowserModel::narrow(const std::optional<Features> &features)
{
    if (isNarrowedTo(features))
        return;
    changeLayout([&] {
        m_narrowed = features;
        show(m_root.get());
    });
}

void BrowserModel::show(Row *category)
{
    if (m_narrowed)
        keepFound(category);
    else
        showAll(category);
}

void BrowserModel::showAll(Row *category)
{
    category->isFound = false;
    category->shownRows.clear();
    for (const auto &row : category->rows) {
        row->shownRow = int(category->shownRows.size());
        category->shownRows.push_back(row.get());
        showAll(row.get());
    }
}

/// True when the category has rows.
bool BrowserModel::keepFound(Row *category)
{
    category->shownRows.clear();
    for (const auto &row : category->rows) {
        const bool isWanted = m_narrowed->contains(row->feature);
        const bool hasWanted = row->isCategory && keepFound(row.get());
        row->shownRow = isWanted || hasWanted ? int(category->shownRows.size()) : -1;
        if (isWanted || hasWanted)
            category->shownRows.push_back(row.get());
        if (isWanted && !hasWanted)
            showAll(row.get());
    }
    category->isFound = !category->shownRows.empty();
    return category->isFound;
}

// Indexes

/// The root for an invalid index.
const BrowserModel::Row *BrowserModel::rowOf(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<const Row *>(index.internalPointer()) : m_root.get();
}

QModelIndex BrowserModel::indexOf(const Row *row, int column) const
{
    const bool isShown = row && row->category && row->shownRow >= 0;
    return isShown ? createIndex(row->shownRow, column, const_cast<Row *>(row)) : QModelIndex();
}

QModelIndex BrowserModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column < 0 || column > valueColumn || parent.column() > nameColumn)
        return QModelIndex();
    const Row *category = rowOf(parent);
    if (static_cast<std::size_t>(row) >= category->shownRows.size())
        return QModelIndex();
    return createIndex(row, column, category->shownRows[static_cast<std::size_t>(row)]);
}

QModelIndex BrowserModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? indexOf(rowOf(index)->category, nameColumn) : QModelIndex();
}

int BrowserModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > nameColumn ? 0 : int(rowOf(parent)->shownRows.size());
}

int BrowserModel::columnCount(const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    return valueColumn + 1;
}

bool BrowserModel::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

QModelIndex BrowserModel::sourceOf(const Row *row, int column) const
{
    if (!row->category)
        return QModelIndex();
    if (row->original)
        return sourceOf(row->original, column);
    if (row == m_favouritesRow)
        return QModelIndex();
    return m_values->index(row->sourceRow, column, sourceOf(row->category, nameColumn));
}

QModelIndex BrowserModel::mapToSource(const QModelIndex &index) const
{
    return index.isValid() ? sourceOf(rowOf(index), index.column()) : QModelIndex();
}

QModelIndex BrowserModel::mapFromSource(const QModelIndex &sourceIndex) const
{
    if (!sourceIndex.isValid())
        return QModelIndex();
    const QVector<Row *> rows = m_rowsOf.value(featureOf(sourceIndex));
    for (const Row *row : rows) {
        if (!row->original && sourceOf(row, sourceIndex.column()) == sourceIndex)
            return indexOf(row, sourceIndex.column());
    }
    return QModelIndex();
}

bool BrowserModel::isFavourites(const QModelIndex &index) const
{
    return index.isValid() && rowOf(index) == m_favouritesRow;
}

bool BrowserModel::isBelowFavourites(const QModelIndex &index) const
{
    return index.isValid() && rowOf(index)->original;
}

QModelIndex BrowserModel::place(const GenApi::IValue *feature) const
{
    for (const Row *row : m_rowsOf.value(feature)) {
        if (!row->original && row->shownRow >= 0)
            return indexOf(row, nameColumn);
    }
    return QModelIndex();
}

QModelIndexList BrowserModel::categories() const
{
    QModelIndexList categories;
    const std::function<void(const Row *)> collect = [&](const Row *category) {
        for (const Row *row : category->shownRows) {
            if (!row->isCategory)
                continue;
            categories << indexOf(row, nameColumn);
            collect(row);
        }
    };
    collect(m_root.get());
    return categories;
}

QModelIndexList BrowserModel::foundCategories(int maxRows) const
{
    QModelIndexList found;
    for (const QModelIndex &category : categories()) {
        const Row *row = rowOf(category);
        if (!row->isFound)
            continue;
        maxRows -= int(row->shownRows.size());
        if (maxRows < 0)
            break;
        found << category;
    }
    return found;
}

QModelIndex BrowserModel::firstFound() const
{
    const std::function<const Row *(const Row *)> first = [&](const Row *category) -> const Row * {
        for (const Row *row : category->shownRows) {
            if (row == m_favouritesRow)
                continue;
            if (m_narrowed && m_narrowed->contains(row->feature))
                return row;
            if (const Row *below = first(row))
                return below;
        }
        return nullptr;
    };
    return indexOf(first(m_root.get()), nameColumn);
}

// Contents

QVariant BrowserModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Row *row = rowOf(index);
    if (row == m_favouritesRow)
        return favouritesData(index.column(), role);
    const GenApi::IValue *feature = row->feature;
    const bool isValue = index.column() == valueColumn;
    if (role == Qt::FontRole && m_marks->isShownChanged(feature)) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (role == Qt::ToolTipRole)
        return isValue ? valueToolTip(feature) : nameToolTip(index, feature);
    if (role == Qt::DecorationRole && isValue && !m_marks->refusal(feature).isNull())
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    if (role == Qt::DisplayRole && isValue && m_frozen.contains(feature))
        return m_frozen.value(feature);
    return QAbstractProxyModel::data(index, role);
}

QVariant BrowserModel::favouritesData(int column, int role) const
{
    if (role == Qt::UserRole)
        return QVariant::fromValue(m_rootFeature);
    if (role == ownRowRole)
        return true;
    if (column != nameColumn)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return tr("Favourites");
    case Qt::ToolTipRole:
        return tr("The features that you have marked with a star");
    case Qt::DecorationRole:
        return star();
    case Qt::BackgroundRole:
        return QPalette().brush(QPalette::Active, QPalette::Midlight);
    default:
        return QVariant();
    }
}

QVariant BrowserModel::nameToolTip(const QModelIndex &index, const GenApi::IValue *feature) const
{
    const QVariant toolTip = QAbstractProxyModel::data(index, Qt::ToolTipRole);
    const QString earlier = m_marks->earlierText(feature);
    return earlier.isEmpty() ? toolTip
                             : QVariant(toolTip.toString() + QStringLiteral(" – ") + earlier);
}

QVariant BrowserModel::valueToolTip(const GenApi::IValue *feature) const
{
    QStringList texts;
    const QString refusal = m_marks->refusal(feature);
    if (!refusal.isNull())
        texts << tr("Refused: %1").arg(refusal);
    const QString earlier = m_marks->earlierText(feature);
    if (!earlier.isEmpty())
        texts << earlier;
    return texts.isEmpty() ? QVariant() : QVariant(texts.join(QStringLiteral(" – ")));
}

Qt::ItemFlags BrowserModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    // Views call this for each row of the layout, and the chain of proxies is slow.
    if (index.column() == nameColumn || rowOf(index) == m_favouritesRow)
        return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    return QAbstractProxyModel::flags(index);
}

void BrowserModel::freeze(const QVector<GenApi::IValue *> &features)
{
    for (const GenApi::IValue *feature : features) {
        const QModelIndex name = place(feature);
        const QModelIndex cell = name.sibling(name.row(), valueColumn);
        if (cell.isValid())
            m_frozen.insert(feature, cell.data());
    }
}

void BrowserModel::thaw()
{
    const QList<const GenApi::IValue *> features = m_frozen.keys();
    m_frozen.clear();
    for (const GenApi::IValue *feature : features)
        refresh(feature);
}

void BrowserModel::refresh(const GenApi::IValue *feature)
{
    for (const Row *row : m_rowsOf.value(feature)) {
        const QModelIndex name = indexOf(row, nameColumn);
        if (name.isValid())
            emit dataChanged(name, name.sibling(name.row(), valueColumn));
    }
}

void BrowserModel::forwardChange(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                 const QVector<int> &roles)
{
    for (int sourceRow = topLeft.row(); sourceRow <= bottomRight.row(); ++sourceRow) {
        const QModelIndex source = topLeft.sibling(sourceRow, topLeft.column());
        for (const Row *row : m_rowsOf.value(featureOf(source))) {
            const QModelIndex first = indexOf(row, topLeft.column());
            if (first.isValid())
                emit dataChanged(first, first.sibling(first.row(), bottomRight.column()), roles);
        }
    }
}

} // namespace OrvGui

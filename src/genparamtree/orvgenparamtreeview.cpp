// SPDX-License-Identifier: MIT
#include "genparamtree/orvgenparamtreeview_p.h"

#include "base/featuremetatype.h"
#include "base/treeviewmodel.h"
#include "base/treeviewresizer.h"
#include "genparamtree/featurenamedelegate.h"
#include "genparamtree/genparamtreemodel.h"
#include "ui_genparamtreeview.h"

#include <GenApi/GenApi.h>
#include <OrvGenParam/Array.h>

#include <QComboBox>
#include <QHeaderView>
#include <QSplitter>

namespace OrvGui {

namespace {

// The marks of a state text. Saved states contain them, so they must not change.
constexpr char pathEnd[] = "&lt;";
constexpr char widthMark[] = "&amp;W";
constexpr char visibilityMark[] = "&amp;V";
constexpr char pathSeparator[] = "/";

constexpr int nameColumn = 0;
constexpr int valueColumn = 1;

// The tree gets all the height; the user can enlarge the description.
constexpr int treePaneSize = 1000;
constexpr int otherPaneSize = 10;

GenApi::INodeMap *nodeMapOf(GenApi::INodeMap *nodeMap)
{
    return nodeMap;
}

GenApi::INodeMap *nodeMapOf(OrvGenParam::Array *array)
{
    int32_t error = 0;
    return array->GetNodeMap(&error);
}

/// Throws for an index without a feature.
bool isCategory(const QModelIndex &index)
{
    GenApi::INode *node = GenApi::CValuePtr(featureOf(index))->GetNode();
    try {
        return node->GetPrincipalInterfaceType() == GenApi::intfICategory;
    } catch (const GenICam::GenericException &) {
        return false;
    }
}

std::string displayName(const QModelIndex &index)
{
    return index.data(Qt::DisplayRole).toString().toStdString();
}

/// The number after the first mark in the text, if the mark is not at its end. Throws as
/// `std::stoi` does.
bool numberAfter(const std::string &text, const std::string &mark, int *number)
{
    const std::string::size_type position = text.find(mark);
    if (position == std::string::npos || position + mark.size() >= text.size())
        return false;
    *number = std::stoi(text.substr(position + mark.size()));
    return true;
}

} // namespace

// OrvGenParamTreeViewPrivate

OrvGenParamTreeViewPrivate::OrvGenParamTreeViewPrivate() : ui(new Ui::GenParamTreeView) {}

OrvGenParamTreeViewPrivate::~OrvGenParamTreeViewPrivate() = default;

template<typename Source>
void OrvGenParamTreeViewPrivate::Init(OrvGenParamTreeView *view, Source *source)
{
    q = view;
    ui->setupUi(q);
    buildSplitter();
    valueDelegate = new SafeDelegate(q);
    setModel(source);
    ui->treeView->setItemDelegate(new FeatureNameDelegate(q));
    ui->treeView->setItemDelegateForColumn(valueColumn, valueDelegate);
    watchFirstShow();
}

void OrvGenParamTreeViewPrivate::buildSplitter()
{
    auto *splitter = new QSplitter(Qt::Vertical, q);
    splitter->addWidget(ui->treeView);
    splitter->addWidget(ui->whatsThisLabel);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({treePaneSize, otherPaneSize});
    ui->verticalLayout->addWidget(splitter);
}

void OrvGenParamTreeViewPrivate::watchFirstShow()
{
    auto *resizer = new TreeViewResizer(ui->treeView);
    QObject::connect(resizer, &TreeViewResizer::showed, q, [this, resizer] {
        if (!columnWidthRestored)
            halveColumns();
        resizer->disconnect();
    });
}

void OrvGenParamTreeViewPrivate::halveColumns()
{
    QTreeView *tree = ui->treeView;
    tree->setColumnWidth(nameColumn,
                         (tree->columnWidth(nameColumn) + tree->columnWidth(valueColumn)) / 2);
}

void OrvGenParamTreeViewPrivate::setModel(std::nullptr_t)
{
    QAbstractItemModel *model = ui->treeView->model();
    if (model) {
        // Removing the model closes the editor before the data that it shows is destroyed.
        setTreeViewModel(ui->treeView, nullptr);
        delete model;
    }
    describeCurrent();
}

template<typename Source>
void OrvGenParamTreeViewPrivate::setModel(Source *source)
{
    setModel(nullptr);
    if (!source)
        return;

    auto *proxy = new KnownValuesModel(q);
    proxy->setSourceModel(new GenParamTreeModel(source, proxy));
    proxy->setFilterVisibility(ui->cbVisibility->currentIndex());
    const auto shown = [this] { return ui->treeView->shownFeatures(); };
    proxy->setLookAhead(TreeLookAhead::create(nodeMapOf(source), shown, proxy));
    setLookAhead(proxy->lookAhead());
    QAbstractItemModel *model = wrap ? wrap(proxy) : proxy;
    setTreeViewModel(ui->treeView, model);
    QObject::connect(ui->treeView->selectionModel(), &QItemSelectionModel::currentChanged, q,
                     [this] { describeCurrent(); });
    QObject::connect(model, &QAbstractItemModel::dataChanged, q, [this](const QModelIndex &cell) {
        if (featureOf(cell) == featureOf(ui->treeView->currentIndex()))
            describeCurrent();
    });
    const auto levelChanged =
        static_cast<void (QComboBox::*)(int)>(&QComboBox::currentIndexChanged);
    QObject::connect(ui->cbVisibility, levelChanged, proxy, [this, proxy] { applyLevel(proxy); });
    halveColumns();
    spanCategories();
}

void OrvGenParamTreeViewPrivate::setLookAhead(TreeLookAhead *newLookAhead)
{
    lookAhead = newLookAhead;
    ui->treeView->setLookAhead(lookAhead);
    valueDelegate->setLookAhead(lookAhead);
    if (lookAhead)
        QObject::connect(lookAhead, &TreeLookAhead::arrived, q, [this] { describeCurrent(); });
}

/// Visits each category before its subcategories, in row order.
template<class Visit>
void OrvGenParamTreeViewPrivate::visitCategories(const QModelIndex &parent,
                                                 const std::string &parentPath,
                                                 const Visit &visit) const
{
    const QAbstractItemModel *model = ui->treeView->model();
    const int rows = model->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model->index(row, nameColumn, parent);
        if (!isCategory(index))
            continue;
        const std::string path = parentPath + displayName(index);
        visit(index, path);
        visitCategories(index, path + pathSeparator, visit);
    }
}

void OrvGenParamTreeViewPrivate::spanCategories()
{
    visitCategories(QModelIndex(), std::string(),
                    [this](const QModelIndex &index, const std::string &) {
                        ui->treeView->setFirstColumnSpanned(index.row(), index.parent(), true);
                    });
}

// A host's model may be between the tree and the proxy.
void OrvGenParamTreeViewPrivate::applyLevel(GenParamTreeVisibilityFilterProxyModel *proxy)
{
    const QPointer<QAbstractItemModel> alive(proxy);
    endEditing();
    if (!alive) // a host has replaced the tree in its handler of the write
        return;
    const int level = ui->cbVisibility->currentIndex();
    moveToVisibleRow(level);
    ui->treeView->scheduleDelayedItemsLayout();
    proxy->setFilterVisibility(level);
    // When a whole category is hidden, Qt removes the current row without a signal.
    describeCurrent();
}

// A value that is written while rows are removed makes the filter remove rows twice. When the row
// of a current value cell is removed, Qt would make a neighbouring value current and edit it.
void OrvGenParamTreeViewPrivate::endEditing()
{
    QTreeView *tree = ui->treeView;
    const QPersistentModelIndex current(tree->currentIndex());
    if (current.column() != valueColumn)
        return;

    const QPointer<QWidget> editor(tree->indexWidget(current));
    const QPointer<QAbstractItemDelegate> delegate(tree->itemDelegate(current));
    if (editor && delegate)
        emit delegate->commitData(editor);
    if (editor && delegate)
        emit delegate->closeEditor(editor);
    if (current.isValid() && current.model() == tree->model())
        tree->selectionModel()->setCurrentIndex(current.sibling(current.row(), nameColumn),
                                                QItemSelectionModel::NoUpdate);
}

// Moves the current row to the next one that stays visible, or the previous one, or the category.
void OrvGenParamTreeViewPrivate::moveToVisibleRow(int level)
{
    const QModelIndex current = ui->treeView->currentIndex();
    const auto isHidden = [level](const QModelIndex &row) {
        return row.isValid() && !GenParamTreeVisibilityFilterProxyModel::isShownAt(level, row);
    };
    if (!isHidden(current))
        return;
    const auto firstVisible = [&](int step) {
        QModelIndex row = current;
        while (isHidden(row))
            row = row.sibling(row.row() + step, current.column());
        return row;
    };
    QModelIndex next = firstVisible(1);
    if (!next.isValid())
        next = firstVisible(-1);
    ui->treeView->setCurrentIndex(next.isValid() ? next : current.parent());
}

void OrvGenParamTreeViewPrivate::describeCurrent()
{
    const QModelIndex current = ui->treeView->currentIndex();
    const bool isOfCamera = !current.data(ownRowRole).toBool();
    ui->whatsThisLabel->describe(isOfCamera ? featureOf(current) : nullptr, lookAhead);
}

void OrvGenParamTreeViewPrivate::saveState()
{
    state.clear();
    if (!ui->treeView->model())
        return;
    visitCategories(ui->treeView->rootIndex(), std::string(),
                    [this](const QModelIndex &index, const std::string &path) {
                        if (ui->treeView->isExpanded(index))
                            state += path + pathEnd;
                    });
    state += widthMark + std::to_string(ui->treeView->columnWidth(nameColumn));
    state += visibilityMark + std::to_string(ui->cbVisibility->currentIndex());
}

void OrvGenParamTreeViewPrivate::loadState(const char *text)
{
    if (!text || !*text || !ui->treeView->model())
        return;
    state = std::string(text); // the text may be `state` itself
    // Matches at any position, so a path that is part of a saved path counts as saved, too.
    visitCategories(ui->treeView->rootIndex(), std::string(),
                    [this](const QModelIndex &index, const std::string &path) {
                        ui->treeView->setExpanded(index, state.find(path) != std::string::npos);
                    });

    int width = 0;
    if (numberAfter(state, widthMark, &width) && width != 0) {
        ui->treeView->setColumnWidth(nameColumn, width);
        columnWidthRestored = true;
    }
    int visibility = 0;
    if (numberAfter(state, visibilityMark, &visibility))
        ui->cbVisibility->setCurrentIndex(visibility);
}

// OrvGenParamTreeView

OrvGenParamTreeView::OrvGenParamTreeView(QWidget *parent)
    : QWidget(parent), d(new OrvGenParamTreeViewPrivate)
{
    d->Init(this, static_cast<GenApi::INodeMap *>(nullptr));
}

OrvGenParamTreeView::OrvGenParamTreeView(GenApi::INodeMap *nodeMap, QWidget *parent)
    : QWidget(parent), d(new OrvGenParamTreeViewPrivate)
{
    d->Init(this, nodeMap);
}

OrvGenParamTreeView::OrvGenParamTreeView(OrvGenParam::Array *array, QWidget *parent)
    : QWidget(parent), d(new OrvGenParamTreeViewPrivate)
{
    d->Init(this, array);
}

OrvGenParamTreeView::~OrvGenParamTreeView()
{
    // An open editor must not lose the focus, and so commit its value, during the destruction of
    // the tree.
    d->setModel(nullptr);
}

void OrvGenParamTreeView::setParams(OrvGenParam::Array *array)
{
    d->setModel(array);
}

void OrvGenParamTreeView::setParams(GenApi::INodeMap *nodeMap)
{
    d->setModel(nodeMap);
}

void OrvGenParamTreeView::clearParams()
{
    d->setModel(nullptr);
}

Visibility OrvGenParamTreeView::visibility() const
{
    return static_cast<Visibility>(d->ui->cbVisibility->currentIndex());
}

void OrvGenParamTreeView::setVisibility(OrvGui::Visibility visibility)
{
    d->ui->cbVisibility->setCurrentIndex(visibility);
}

const char *OrvGenParamTreeView::saveState() const
{
    d->saveState();
    return d->state.c_str();
}

void OrvGenParamTreeView::loadState(const char *state)
{
    d->loadState(state);
}

QTreeView *OrvGenParamTreeView::treeView() const
{
    return d->ui->treeView;
}

} // namespace OrvGui

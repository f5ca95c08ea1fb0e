// SPDX-License-Identifier: MIT
#include "browser/orvfeaturebrowser_p.h"

#include "base/cameratext.h"
#include "base/featuremetatype.h"
#include "base/genicamstring.h"
#include "browser/featuremenu.h"
#include "genparamtree/genparamtreemodel.h"
#include "genparamtree/knownvaluesmodel.h"

#include <GenApi/GenApi.h>
#include <OrvGenParam/Array.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace OrvGui {

namespace {

constexpr int nameColumn = 0;

/// The most rows that a search expands.
constexpr int maxExpanded = 1000;

// In the tree's state text.
constexpr char pathEnd[] = "&lt;";
constexpr char widthMark[] = "&amp;W";

// The margins of the tree view.
constexpr int margin = 11;
constexpr int spacing = 6;

QByteArray pathOf(const QModelIndex &category)
{
    const QByteArray name = category.data().toString().toUtf8();
    const QModelIndex parent = category.parent();
    return parent.isValid() ? pathOf(parent) + '/' + name : name;
}

GenApi::INodeMap *nodeMapOf(OrvGenParam::Array *array)
{
    int32_t error = 0;
    return array ? array->GetNodeMap(&error) : nullptr;
}

GenApi::IValue *valueOf(GenApi::INodeMap *nodeMap, const QString &name)
{
    return dynamic_cast<GenApi::IValue *>(nodeMap->GetNode(toUtf8(name)));
}

} // namespace

// OrvFeatureBrowserPrivate

OrvFeatureBrowserPrivate::OrvFeatureBrowserPrivate(OrvFeatureBrowser *browser)
    : q(browser)
    , searchLine(new QLineEdit(browser))
    , menuButton(new QToolButton(browser))
    , countLabel(new QLabel(browser))
    , higherButton(new QToolButton(browser))
    , view(new OrvGenParamTreeView(browser))
    , menu(new QMenu(menuButton))
    , searchTextsAction(new QAction(browser))
    , onlyChangedAction(new QAction(browser))
    , putBackAction(new QAction(browser))
    , nameDelegate(new FoundNameDelegate(browser))
    , undoActions(new UndoActions(browser))
{
    buildWindow();
    buildMenu();
    setTexts();
    OrvGenParamTreeViewPrivate::of(*view).wrap = [this](KnownValuesModel *values) {
        return wrap(values);
    };
    tree().setItemDelegateForColumn(nameColumn, nameDelegate);
    tree().setContextMenuPolicy(Qt::CustomContextMenu);
    tree().installEventFilter(q);
    searchLine->installEventFilter(q);
    QObject::connect(&tree(), &QWidget::customContextMenuRequested, q,
                     [this](const QPoint &position) { openMenu(position); });
    QObject::connect(searchLine, &QLineEdit::textChanged, q, [this] { narrow(); });
    QObject::connect(higherButton, &QToolButton::clicked, q, [this] { showHigherLevel(); });
    auto *levels = view->findChild<QComboBox *>(QStringLiteral("cbVisibility"));
    const auto levelChanged =
        static_cast<void (QComboBox::*)(int)>(&QComboBox::currentIndexChanged);
    // The tree's delegate is replaced with each model.
    const auto followLevel = [this] {
        if (shown)
            spanCategories();
        isExpansionOutdated = true;
        narrow();
    };
    QObject::connect(levels, levelChanged, q, followLevel, Qt::QueuedConnection);
    renarrow.setSingleShot(true);
    renarrow.setInterval(0);
    QObject::connect(&renarrow, &QTimer::timeout, q, [this] { narrow(); });
    undoActions->watchEditorsOf(&tree());
    // Commits a pending edit as a write of its own; an open editor would keep the old value.
    QObject::connect(undoActions, &UndoActions::triggered, q,
                     [this] { OrvGenParamTreeViewPrivate::of(*view).endEditing(); });
    auto *find = new QShortcut(QKeySequence::Find, q);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(find, &QShortcut::activated, q, [this] {
        searchLine->setFocus(Qt::ShortcutFocusReason);
        searchLine->selectAll();
    });
}

void OrvFeatureBrowserPrivate::buildWindow()
{
    searchLine->setObjectName(QStringLiteral("searchLine"));
    searchLine->setClearButtonEnabled(true);
    countLabel->setObjectName(QStringLiteral("countLabel"));
    countLabel->hide();
    higherButton->setObjectName(QStringLiteral("higherButton"));
    higherButton->setToolButtonStyle(Qt::ToolButtonTextOnly);
    higherButton->hide();
    menuButton->setObjectName(QStringLiteral("menuButton"));
    menuButton->setPopupMode(QToolButton::InstantPopup);
    menuButton->setMenu(menu);

    auto *line = new QHBoxLayout;
    line->setSpacing(spacing);
    line->setContentsMargins(margin, margin, margin, 0);
    line->addWidget(searchLine, 1);
    line->addWidget(menuButton);
    auto *counts = new QHBoxLayout; // as high as its widgets
    counts->setSpacing(spacing);
    counts->setContentsMargins(margin, 0, margin, 0);
    counts->addWidget(countLabel);
    counts->addWidget(higherButton);
    counts->addStretch(1);
    auto *layout = new QVBoxLayout(q);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(line);
    layout->addLayout(counts);
    layout->addWidget(view, 1);
    QLayout *treeLayout = view->layout();
    treeLayout->setContentsMargins(margin, spacing, margin, margin);
    q->resize(view->size() + QSize(0, line->sizeHint().height()));
}

void OrvFeatureBrowserPrivate::buildMenu()
{
    menu->setObjectName(QStringLiteral("browserMenu"));
    for (QAction *action : {undoActions->undo(), undoActions->redo()}) {
        // The host may use the same keys.
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        menu->addAction(action);
    }
    menu->addSeparator();
    onlyChangedAction->setObjectName(QStringLiteral("onlyChanged"));
    onlyChangedAction->setCheckable(true);
    putBackAction->setObjectName(QStringLiteral("putBackAll"));
    putBackAction->setEnabled(false);
    searchTextsAction->setObjectName(QStringLiteral("searchTexts"));
    searchTextsAction->setCheckable(true);
    searchTextsAction->setChecked(true);
    menu->addAction(onlyChangedAction);
    menu->addAction(putBackAction);
    menu->addSeparator();
    menu->addAction(searchTextsAction);
    QObject::connect(onlyChangedAction, &QAction::toggled, q, [this] { narrow(); });
    QObject::connect(putBackAction, &QAction::triggered, q, [this] { putBack(nullptr); });
    QObject::connect(searchTextsAction, &QAction::toggled, q, [this](bool isOn) {
        remembered.searchesTexts = isOn;
        if (shown)
            shown->search().setWithDescriptions(isOn);
        narrow();
    });
}

void OrvFeatureBrowserPrivate::setTexts()
{
    searchLine->setPlaceholderText(OrvFeatureBrowser::tr("Search (Ctrl+F)"));
    searchLine->setAccessibleName(OrvFeatureBrowser::tr("Search"));
    menuButton->setText(OrvFeatureBrowser::tr("Menu"));
    onlyChangedAction->setText(OrvFeatureBrowser::tr("Show Only Changed"));
    putBackAction->setText(OrvFeatureBrowser::tr("Put Back All"));
    searchTextsAction->setText(OrvFeatureBrowser::tr("Search in Descriptions"));
}

// Features

template<typename Source>
void OrvFeatureBrowserPrivate::setParams(Source *source, GenApi::INodeMap *newNodeMap)
{
    clearParams();
    nodeMap = newNodeMap;
    try {
        view->setParams(source);
    } catch (...) {
        nodeMap = nullptr;
        view->clearParams();
        throw;
    }
    setJournal(FeatureJournal::of(nodeMap));
    if (!shown)
        return;
    showFavourites();
    restoreTree();
    narrow();
}

void OrvFeatureBrowserPrivate::clearParams()
{
    delete table;
    rememberTree();
    before.reset();
    view->clearParams();
    setJournal(nullptr);
    nodeMap = nullptr;
    marksChanged();
    narrow();
}

QAbstractItemModel *OrvFeatureBrowserPrivate::wrap(KnownValuesModel *values)
{
    auto *root = nodeMap ? dynamic_cast<GenApi::IValue *>(nodeMap->GetNode("Root")) : nullptr;
    auto *model = new BrowserModel(values, root, view);
    shown = model;
    model->search().setWithDescriptions(remembered.searchesTexts);
    QObject::connect(&model->marks(), &FeatureMarks::changed, q, [this] { marksChanged(); });
    QObject::connect(features(), &GenParamTreeModel::aboutToWrite, q,
                     [this](GenApi::IValue *feature) {
                         if (journal)
                             writing.insert(feature, journal->known(feature->GetNode()));
                     });
    QObject::connect(features(), &GenParamTreeModel::refused, q,
                     [this](GenApi::IValue *feature) { writing.remove(feature); });
    // The marks have read the selectors by now.
    QObject::connect(features(), &GenParamTreeModel::written, q,
                     [this](GenApi::IValue *feature, const QString &earlier, const QString &after) {
                         record(feature, earlier, after);
                     });
    return model;
}

void OrvFeatureBrowserPrivate::setJournal(const FeatureJournal::Pointer &newJournal)
{
    if (journal)
        QObject::disconnect(journal.get(), nullptr, q, nullptr);
    writing.clear();
    journal = newJournal;
    undoActions->setJournal(journal);
    if (journal)
        QObject::connect(journal.get(), &FeatureJournal::written, q,
                         [this](const FeatureJournal::Write &write) { noteWrite(write); });
}

/// The texts replace values that are not known.
void OrvFeatureBrowserPrivate::record(GenApi::IValue *feature, const QString &earlier,
                                      const QString &after)
{
    const FeatureJournal::Pointer kept = journal; // a receiver may disconnect the camera
    if (!kept)
        return;
    GenApi::INode *node = feature->GetNode();
    const FeatureJournal::State now = kept->known(node);
    FeatureJournal::State former = writing.take(feature);
    // The selectors' values are known after the write.
    former.selectors = now.selectors;
    former.areSelectorsKnown = now.areSelectorsKnown;
    if (!former.value.isValid() && !earlier.isNull())
        former.value = earlier;
    const QVariant value = now.value.isValid() || after.isNull() ? now.value : QVariant(after);
    const QPointer<OrvFeatureBrowser> alive(q);
    isRecording = true;
    kept->record(node, former, value);
    if (alive)
        isRecording = false;
}

void OrvFeatureBrowserPrivate::noteWrite(const FeatureJournal::Write &write)
{
    auto *feature = dynamic_cast<GenApi::IValue *>(write.node);
    if (!shown || !feature || isRecording)
        return;
    SelectorPlaces places = placesOf(feature, *features());
    for (SelectorPlace &place : places) {
        const QString name = fromUtf8(place.selector->GetNode()->GetName());
        for (const FeatureJournal::Setting &selector : write.selectors) {
            if (selector.feature == name && !selector.text.isNull())
                place.value = selector.text;
        }
    }
    shown->marks().noteForeignWrite(feature, places, write.before, write.after);
}

GenParamTreeModel *OrvFeatureBrowserPrivate::features() const
{
    auto *values = shown ? qobject_cast<KnownValuesModel *>(shown->sourceModel()) : nullptr;
    return values ? qobject_cast<GenParamTreeModel *>(values->sourceModel()) : nullptr;
}

QByteArray OrvFeatureBrowserPrivate::saveTree() const
{
    try {
        return view->saveState();
    } catch (const GenICam::GenericException &) {
        return QByteArray(); // the list of a category has become shorter
    }
}

void OrvFeatureBrowserPrivate::rememberTree()
{
    if (!shown)
        return;
    const QByteArray now = saveTree();
    if (now.isEmpty())
        return;
    // The width and the level are those of the tree as it is now.
    remembered.tree = before ? before->paths + now.mid(int(now.indexOf(widthMark))) : now;
}

void OrvFeatureBrowserPrivate::restoreTree()
{
    const QByteArray tree = BrowserState::withLevel(remembered.tree, {});
    if (tree.isEmpty())
        return;
    try {
        view->loadState(tree.constData());
    } catch (const GenICam::GenericException &) {
        // The list of a category has become shorter.
    }
    spanCategories();
}

// Search

void OrvFeatureBrowserPrivate::narrow()
{
    renarrow.stop();
    const QStringList words = FeatureSearch::wordsOf(searchLine->text());
    const bool isNarrowed = shown && (!words.isEmpty() || onlyChangedAction->isChecked());
    nameDelegate->setWords(words);
    if (!isNarrowed) {
        showCounts(nullptr);
        if (shown && before)
            restoreLook();
        return;
    }
    if (!before)
        storeLook();
    FeatureSearch::Features wanted = shown->marks().changedFeatures();
    if (words.isEmpty()) {
        showCounts(nullptr);
    } else {
        const FeatureSearch::Result &result = shown->search().find(searchLine->text());
        showCounts(&result);
        wanted =
            onlyChangedAction->isChecked() ? wanted.intersect(result.features) : result.features;
    }
    if (isExpansionOutdated || !shown->isNarrowedTo(wanted))
        showNarrowed(wanted);
    tree().viewport()->update(); // the highlights in the names have changed
}

/// Expands the search results up to a limit: the layout of thousands of rows would delay typing.
void OrvFeatureBrowserPrivate::showNarrowed(const FeatureSearch::Features &wanted)
{
    OrvGenParamTreeViewPrivate::of(*view).endEditing();
    if (!shown) // a host has replaced the tree in its handler of a write
        return;
    shown->narrow(wanted);
    tree().collapseAll();
    tree().scheduleDelayedItemsLayout();
    for (const QModelIndex &category : shown->foundCategories(maxExpanded))
        tree().expand(category);
    spanCategories();
    isExpansionOutdated = false;
    // The current row may have been removed.
    OrvGenParamTreeViewPrivate::of(*view).describeCurrent();
}

void OrvFeatureBrowserPrivate::storeLook()
{
    // The tree's own state would read all rows, which would delay typing.
    Look look;
    for (const QModelIndex &category : shown->categories()) {
        if (!tree().isExpanded(category))
            continue;
        look.expanded.emplace_back(featureOf(category), featureOf(category.parent()));
        look.paths += pathOf(category) + pathEnd;
    }
    look.current = featureOf(tree().currentIndex());
    look.isCurrentFavourite = shown->isBelowFavourites(tree().currentIndex());
    look.scrollPosition = tree().verticalScrollBar()->value();
    before = std::move(look);
    isExpansionOutdated = true;
}

void OrvFeatureBrowserPrivate::restoreLook()
{
    OrvGenParamTreeViewPrivate::of(*view).endEditing();
    if (!shown || !before)
        return;
    const Look look = *std::exchange(before, {});
    shown->narrow({});
    tree().collapseAll();
    tree().scheduleDelayedItemsLayout();
    QModelIndex current = look.isCurrentFavourite ? QModelIndex() : shown->place(look.current);
    for (const QModelIndex &category : shown->categories()) {
        const auto entry = std::make_pair(featureOf(category), featureOf(category.parent()));
        if (std::find(look.expanded.begin(), look.expanded.end(), entry) != look.expanded.end())
            tree().expand(category);
        if (look.isCurrentFavourite && shown->isFavourites(category)) {
            for (int row = 0; row < shown->rowCount(category); ++row) {
                if (featureOf(shown->index(row, nameColumn, category)) == look.current)
                    current = shown->index(row, nameColumn, category);
            }
        }
    }
    spanCategories();
    tree().setCurrentIndex(current);
    // Forces the layout, which sets the range of the scroll bar.
    tree().visualRect(shown->index(0, nameColumn));
    tree().verticalScrollBar()->setValue(look.scrollPosition);
    OrvGenParamTreeViewPrivate::of(*view).describeCurrent();
}

// A row loses its span while it is hidden.
void OrvFeatureBrowserPrivate::spanCategories()
{
    for (const QModelIndex &category : shown->categories()) {
        if (!tree().isFirstColumnSpanned(category.row(), category.parent()))
            tree().setFirstColumnSpanned(category.row(), category.parent(), true);
    }
}

/// Null without a search.
void OrvFeatureBrowserPrivate::showCounts(const FeatureSearch::Result *result)
{
    countLabel->setVisible(result);
    higherButton->hide();
    if (!result)
        return;
    const auto level = static_cast<std::size_t>(qBound(0, int(view->visibility()), 2));
    const int count = result->counts[level];
    countLabel->setText(count == 0 ? OrvFeatureBrowser::tr("Nothing found")
                                   : OrvFeatureBrowser::tr("%1 found").arg(count));
    const int more = result->counts.back() - count;
    if (more == 0)
        return;
    higherLevel = OrvGui::Guru;
    for (int candidate = OrvGui::Guru; candidate > int(level); --candidate) {
        if (result->counts[static_cast<std::size_t>(candidate)] == result->counts.back())
            higherLevel = candidate;
    }
    const auto *levels = view->findChild<QComboBox *>(QStringLiteral("cbVisibility"));
    higherButton->setText(
        OrvFeatureBrowser::tr("%1 more at level %2").arg(more).arg(levels->itemText(higherLevel)));
    higherButton->setToolTip(OrvFeatureBrowser::tr("Shows them"));
    higherButton->show();
}

void OrvFeatureBrowserPrivate::showHigherLevel()
{
    view->setVisibility(static_cast<Visibility>(higherLevel));
    isExpansionOutdated = true;
    narrow();
}

void OrvFeatureBrowserPrivate::endSearch()
{
    searchLine->clear();
    onlyChangedAction->setChecked(false);
    tree().setFocus(Qt::OtherFocusReason);
}

void OrvFeatureBrowserPrivate::goToFirstFound()
{
    tree().setFocus(Qt::OtherFocusReason);
    const QModelIndex first = shown && before ? shown->firstFound() : QModelIndex();
    if (first.isValid())
        tree().setCurrentIndex(first);
}

/// Shows the feature in its category, at a level that includes it.
void OrvFeatureBrowserPrivate::goTo(GenApi::IValue *feature)
{
    if (!shown->place(feature).isValid()) {
        searchLine->clear();
        onlyChangedAction->setChecked(false);
    }
    for (int level = view->visibility() + 1;
         shown && !shown->place(feature).isValid() && level <= OrvGui::Guru; ++level)
        view->setVisibility(static_cast<Visibility>(level));
    if (!shown)
        return;
    const QModelIndex place = shown->place(feature);
    if (!place.isValid())
        return;
    tree().setCurrentIndex(place);
    tree().scrollTo(place);
    tree().setFocus(Qt::OtherFocusReason);
}

// Favourites

QString OrvFeatureBrowserPrivate::model() const
{
    return nodeMap ? fromUtf8(nodeMap->GetDeviceName()) : QString();
}

bool OrvFeatureBrowserPrivate::isFavourite(GenApi::IValue *feature) const
{
    return remembered.favourites.value(model()).contains(
        fromUtf8(feature->GetNode()->GetName(false)));
}

void OrvFeatureBrowserPrivate::setFavourite(GenApi::IValue *feature, bool isOn)
{
    QStringList &names = remembered.favourites[model()];
    const QString name = fromUtf8(feature->GetNode()->GetName(false));
    names.removeAll(name);
    if (isOn)
        names.append(name);
    OrvGenParamTreeViewPrivate::of(*view).endEditing();
    if (shown)
        showFavourites();
}

void OrvFeatureBrowserPrivate::showFavourites()
{
    QVector<GenApi::IValue *> features;
    for (const QString &name : remembered.favourites.value(model())) {
        GenApi::IValue *feature = valueOf(nodeMap, name);
        if (feature && !features.contains(feature))
            features.append(feature);
    }
    const auto group = [this] {
        const QModelIndex first = shown->index(0, nameColumn);
        return shown->isFavourites(first) ? first : QModelIndex();
    };
    const bool hadGroup = group().isValid();
    shown->setFavourites(features);
    spanCategories();
    if (!hadGroup && group().isValid())
        tree().expand(group());
}

// The context menu

void OrvFeatureBrowserPrivate::openMenu(const QPoint &position)
{
    const QModelIndex row = tree().indexAt(position);
    if (!shown || !row.isValid() || !features())
        return;
    GenApi::IValue *feature = featureOf(row);
    const bool isStarred = feature && !shown->isFavourites(row) && isFavourite(feature);
    auto *context = new FeatureMenu(row, *shown, *features(), isStarred, q);
    context->setAttribute(Qt::WA_DeleteOnClose);
    // The menu must not stay open for a tree that no longer exists.
    QObject::connect(shown.data(), &QObject::destroyed, context, &QWidget::close);
    QObject::connect(context, &FeatureMenu::featureWanted, q,
                     [this](GenApi::IValue *wanted) { goTo(wanted); });
    QObject::connect(context, &FeatureMenu::favouriteWanted, q,
                     [this](GenApi::IValue *wanted, bool isOn) { setFavourite(wanted, isOn); });
    QObject::connect(context, &FeatureMenu::putBackWanted, q,
                     [this](GenApi::IValue *wanted) { putBack(wanted); });
    QObject::connect(context, &FeatureMenu::tableWanted, q,
                     [this](GenApi::IValue *selector, const QVector<GenApi::IValue *> &columns) {
                         openTable(selector, columns);
                     });
    QObject::connect(
        context, &FeatureMenu::expansionWanted, q,
        [this](const QPersistentModelIndex &wanted, bool isOn) { expand(wanted, isOn); });
    context->popup(tree().viewport()->mapToGlobal(position));
}

void OrvFeatureBrowserPrivate::openTable(GenApi::IValue *selector,
                                         const QVector<GenApi::IValue *> &columns)
{
    OrvGenParamTreeViewPrivate::of(*view).endEditing();
    if (!shown)
        return;
    delete table;
    table = new SelectorTable(nodeMap, *features(), *shown, selector, columns, q);
    table->setAttribute(Qt::WA_DeleteOnClose);
    table->show();
}

void OrvFeatureBrowserPrivate::expand(const QPersistentModelIndex &row, bool isExpanded)
{
    if (!row.isValid())
        return;
    tree().scheduleDelayedItemsLayout();
    tree().setExpanded(row, isExpanded);
    const int rows = shown->rowCount(row);
    for (int child = 0; child < rows; ++child) {
        const QModelIndex below = shown->index(child, nameColumn, row);
        if (shown->hasChildren(below))
            expand(below, isExpanded);
    }
}

void OrvFeatureBrowserPrivate::marksChanged()
{
    putBackAction->setEnabled(shown && shown->marks().isChanged());
    if (onlyChangedAction->isChecked())
        renarrow.start(); // an open editor may be committing
}

void OrvFeatureBrowserPrivate::putBack(const GenApi::IValue *feature)
{
    OrvGenParamTreeViewPrivate::of(*view).endEditing();
    const FeatureJournal::Group step(journal);
    if (shown)
        shown->marks().putBack(feature);
}

// State

void OrvFeatureBrowserPrivate::saveState()
{
    rememberTree();
    if (!shown && !remembered.tree.isEmpty())
        remembered.tree = BrowserState::withLevel(remembered.tree, view->visibility());
    text = remembered.toText();
}

bool OrvFeatureBrowserPrivate::restoreState(const QByteArray &saved)
{
    auto state = BrowserState::fromText(saved);
    if (!state)
        return false;
    const bool isOfBrowser = saved.contains("&amp;B");
    if (isOfBrowser) {
        remembered = *state;
        searchTextsAction->setChecked(remembered.searchesTexts);
    }
    remembered.tree = state->tree;
    const std::optional<int> level = state->level();
    if (level && *level >= OrvGui::Basic && *level <= OrvGui::Guru)
        view->setVisibility(static_cast<Visibility>(*level));
    if (!shown)
        return true;
    searchLine->clear();
    onlyChangedAction->setChecked(false);
    showFavourites();
    restoreTree();
    return true;
}

// OrvFeatureBrowser

OrvFeatureBrowser::OrvFeatureBrowser(QWidget *parent)
    : QWidget(parent), d(new OrvFeatureBrowserPrivate(this))
{
}

OrvFeatureBrowser::OrvFeatureBrowser(GenApi::INodeMap *nodeMap, QWidget *parent)
    : OrvFeatureBrowser(parent)
{
    d->setParams(nodeMap, nodeMap);
}

OrvFeatureBrowser::OrvFeatureBrowser(OrvGenParam::Array *array, QWidget *parent)
    : OrvFeatureBrowser(parent)
{
    d->setParams(array, nodeMapOf(array));
}

OrvFeatureBrowser::~OrvFeatureBrowser()
{
    delete d->table;
    d->view->clearParams(); // receivers of the view's signals still exist
}

void OrvFeatureBrowser::setParams(OrvGenParam::Array *array)
{
    d->setParams(array, nodeMapOf(array));
}

void OrvFeatureBrowser::setParams(GenApi::INodeMap *nodeMap)
{
    d->setParams(nodeMap, nodeMap);
}

void OrvFeatureBrowser::clearParams()
{
    d->clearParams();
}

Visibility OrvFeatureBrowser::visibility() const
{
    return d->view->visibility();
}

void OrvFeatureBrowser::setVisibility(OrvGui::Visibility visibility)
{
    d->view->setVisibility(visibility);
}

const char *OrvFeatureBrowser::saveState() const
{
    d->saveState();
    return d->text.constData();
}

void OrvFeatureBrowser::loadState(const char *state)
{
    restoreState(state);
}

bool OrvFeatureBrowser::restoreState(const char *state)
{
    return d->restoreState(QByteArray(state)); // a copy: the text may be `d->text`
}

QTreeView *OrvFeatureBrowser::treeView() const
{
    return d->view->treeView();
}

QMenu *OrvFeatureBrowser::menu() const
{
    return d->menu;
}

void OrvFeatureBrowser::search(const QString &text)
{
    d->searchLine->setText(text);
}

bool OrvFeatureBrowser::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn && watched == d->searchLine && d->shown)
        d->shown->search().prepare();
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool isOfLine = watched == d->searchLine;
    const bool isOfTree = watched == treeView() && treeView()->hasFocus();
    if (key == Qt::Key_Escape && (isOfLine || (isOfTree && d->before))) {
        d->endSearch();
        return true;
    }
    if (isOfLine && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down)) {
        d->goToFirstFound();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "browser/browsermodel.h"
#include "browser/browserstate.h"
#include "browser/foundnamedelegate.h"
#include "browser/orvfeaturebrowser.h"
#include "browser/selectortable.h"
#include "genparamtree/featuretree.h"
#include "genparamtree/orvgenparamtreeview_p.h"
#include "journal/featurejournal.h"
#include "journal/undoactions.h"

#include <QHash>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTimer>

#include <optional>
#include <utility>
#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QToolButton;

namespace OrvGui {

/// Private part of `OrvFeatureBrowser`.
class OrvFeatureBrowserPrivate
{
public:
    static OrvFeatureBrowserPrivate &of(OrvFeatureBrowser &browser) { return *browser.d; }

    explicit OrvFeatureBrowserPrivate(OrvFeatureBrowser *browser);
    void buildWindow();
    void buildMenu();
    void setTexts();

    template<typename Source>
    void setParams(Source *source, GenApi::INodeMap *newNodeMap);
    void clearParams();
    QAbstractItemModel *wrap(KnownValuesModel *values);
    void rememberTree();
    void restoreTree();

    FeatureTree &tree() const { return static_cast<FeatureTree &>(*view->treeView()); }
    GenParamTreeModel *features() const;

    void narrow();
    void showNarrowed(const FeatureSearch::Features &wanted);
    void storeLook();
    void restoreLook();
    void spanCategories();
    void showCounts(const FeatureSearch::Result *result);
    void showHigherLevel();
    void endSearch();
    void goToFirstFound();
    void goTo(GenApi::IValue *feature);

    QString model() const;
    bool isFavourite(GenApi::IValue *feature) const;
    void setFavourite(GenApi::IValue *feature, bool isOn);
    void showFavourites();

    void openMenu(const QPoint &position);
    void openTable(GenApi::IValue *selector, const QVector<GenApi::IValue *> &columns);
    void expand(const QPersistentModelIndex &row, bool isExpanded);
    void marksChanged();

    void setJournal(const FeatureJournal::Pointer &newJournal);
    void record(GenApi::IValue *feature, const QString &earlier, const QString &after);

    /// Marks a change by a write that bypassed the browser.
    void noteWrite(const FeatureJournal::Write &write);
    void putBack(const GenApi::IValue *feature);

    QByteArray saveTree() const;
    void saveState();
    bool restoreState(const QByteArray &text);

    OrvFeatureBrowser *const q;
    // In tab order.
    QLineEdit *searchLine;
    QToolButton *menuButton;
    QLabel *countLabel;
    QToolButton *higherButton;
    OrvGenParamTreeView *view;
    QMenu *menu;
    QAction *searchTextsAction;
    QAction *onlyChangedAction;
    QAction *putBackAction;
    FoundNameDelegate *nameDelegate;

    UndoActions *undoActions;
    FeatureJournal::Pointer journal; ///< of the node map; null without one
    /// The state before each write that is in progress.
    QHash<const GenApi::IValue *, FeatureJournal::State> writing;
    bool isRecording = false;

    QTimer renarrow; ///< filters again after the set of changed features has changed
    QPointer<SelectorTable> table;

    GenApi::INodeMap *nodeMap = nullptr;
    QPointer<BrowserModel> shown; ///< null without features
    BrowserState remembered;      ///< without the tree's part while there are features
    QByteArray text;              ///< returned by `saveState`
    int higherLevel = 0;          ///< the lowest level at which all results are shown

    /// The state of the tree before it was filtered.
    struct Look
    {
        QByteArray paths; ///< of the expanded categories, as in the state text
        /// Expanded categories, each with its parent category.
        std::vector<std::pair<GenApi::IValue *, GenApi::IValue *>> expanded;
        GenApi::IValue *current = nullptr;
        bool isCurrentFavourite = false;
        int scrollPosition = 0;
    };
    std::optional<Look> before; ///< set while the tree is filtered
    bool isExpansionOutdated = false;
};

} // namespace OrvGui

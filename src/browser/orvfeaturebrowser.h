// SPDX-License-Identifier: MIT
#pragma once

#include "iorvgenparamtreeview.h"

#include <QScopedPointer>
#include <QWidget>

class QMenu;
class QTreeView;

namespace OrvGui {

class OrvFeatureBrowserPrivate;

/// Shows the features of a camera as `OrvGenParamTreeView` does, and adds functions to find
/// features and to view and undo changes.
///
/// - A search line (Ctrl+F) limits the tree to the features that it finds. Escape restores the
///   tree.
/// - A category of favourites on top, to which the user adds features from their context menu. The
///   favourites are kept per camera model, by the model name of the node map.
/// - A feature that was changed in this browser is bold. Its tool tip shows the earlier value,
///   which can be put back. A refused feature is marked, with the reason, until it is written
///   again.
/// - A table shows a feature's values for all values of its selector.
///
/// An ordinary widget for Qt programs, which can replace a tree; see `IOrvGenParamTreeView` for
/// lifetimes and the functions. Unlike a tree, a browser keeps its state when it is given other
/// parameters, even when it has had no parameters for a time.
class ORVCAMERAGUIAPI_EXPORT OrvFeatureBrowser : public QWidget, public IOrvGenParamTreeView
{
    Q_OBJECT

public:
    /// Shows nothing yet.
    explicit OrvFeatureBrowser(QWidget *parent = nullptr);
    OrvFeatureBrowser(GenApi::INodeMap *nodeMap, QWidget *parent);
    OrvFeatureBrowser(OrvGenParam::Array *array, QWidget *parent);
    ~OrvFeatureBrowser() override;

    void setParams(OrvGenParam::Array *array) override;
    void setParams(GenApi::INodeMap *nodeMap) override;
    void clearParams() override;
    OrvGui::Visibility visibility() const override;
    void setVisibility(OrvGui::Visibility visibility) override;

    /// Returns the state text of the tree without the effects of a search, the favourites of all
    /// camera models and the options of the search. Never empty. A tree can load it, too.
    const char *saveState() const override;

    /// The same as `restoreState`, without a result. Throws nothing.
    void loadState(const char *state) override;

    /// Restores the state that `saveState` of a browser or of a tree returned. The state of a tree
    /// leaves the favourites unchanged. May be called at any time: the expanded categories are
    /// restored when there are features. Returns false and changes nothing for any other text.
    bool restoreState(const char *state);

    /// The inner tree view, for adapting its appearance. Do not replace its model, delegate or
    /// selection model.
    QTreeView *treeView() const;

    /// The menu of the button beside the search line. The host may add to it.
    QMenu *menu() const;

    /// Searches as if the user had typed the text. An empty text ends the search.
    void search(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class OrvFeatureBrowserPrivate;

    QScopedPointer<OrvFeatureBrowserPrivate> d;
};

} // namespace OrvGui

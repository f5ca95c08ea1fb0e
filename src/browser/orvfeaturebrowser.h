// SPDX-License-Identifier: MIT
#pragma once

#include "iorvgenparamtreeview.h"

#include <QScopedPointer>
#include <QWidget>

class QMenu;
class QTreeView;

namespace OrvGui {

class OrvFeatureBrowserPrivate;

/// The tree of the features of a camera, as `OrvGenParamTreeView`, with what helps to find features
/// among many, and to see and undo what was changed.
///
/// - A search line (Ctrl+F): the tree is narrowed to what it finds. Escape gives it back as it was.
/// - A category of favourites on top, which the user fills from the context menu of a feature. They
///   are kept for each camera model, as the node map names it.
/// - What was changed in this browser is bold, with the earlier value in its tool tip, and can be
///   put back. What the camera has refused is marked, with the reason, until it is written again.
/// - A table of a feature's values for all values of its selector.
///
/// A widget like any other for Qt programs, which can take the place of a tree; see
/// `IOrvGenParamTreeView` for what the host must keep alive and for the meaning of the operations.
/// Other than a tree, a browser keeps what it looks like when it is given other parameters, also
/// over a time without any.
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

    /// What the tree's state text has, as it is without a search, and the favourites of all camera
    /// models and the options of the search. Never empty. A tree can load it, too.
    const char *saveState() const override;

    /// As `restoreState`, without an answer. Throws nothing.
    void loadState(const char *state) override;

    /// Restores what `saveState` of a browser or of a tree has saved; the favourites stay when it
    /// was a tree. At any time: what is unfolded is restored when there are features. False, and
    /// nothing is changed, for a text that is none.
    bool restoreState(const char *state);

    /// The tree itself, to adapt its looks. Its model, delegate and selection model are the
    /// widget's business.
    QTreeView *treeView() const;

    /// The menu of the button beside the search line. The host may add to it.
    QMenu *menu() const;

    /// Searches as if the user had typed the text; an empty one ends the search.
    void search(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class OrvFeatureBrowserPrivate;

    QScopedPointer<OrvFeatureBrowserPrivate> d;
};

} // namespace OrvGui

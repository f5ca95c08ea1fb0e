// SPDX-License-Identifier: MIT
#pragma once

#include "iorvgenparamtreeview.h"

#include <QScopedPointer>
#include <QWidget>

class QTreeView;

namespace OrvGui {

class OrvGenParamTreeViewPrivate;

/// Shows the features of a camera, or of any other node map, as an editable tree: the visibility
/// level at the top, the tree in the middle, and the description of the current feature at the
/// bottom.
///
/// An ordinary widget for Qt programs; see `IOrvGenParamTreeView` for lifetimes and for the
/// functions. Values are edited in place and written at once. A refused value silently reverts to
/// the camera's value.
///
/// With a node map that is an `OrvGenParam::LookAhead`, only a write blocks for the camera. Values
/// appear when they arrive, and an editor opens when its value and limits have arrived. The model
/// of `treeView()` then returns cached values only; a `GenParamTreeModel` of the host still blocks.
class ORVCAMERAGUIAPI_EXPORT OrvGenParamTreeView : public QWidget, public IOrvGenParamTreeView
{
    Q_OBJECT

public:
    /// Shows nothing yet.
    explicit OrvGenParamTreeView(QWidget *parent = nullptr);
    OrvGenParamTreeView(GenApi::INodeMap *nodeMap, QWidget *parent);
    OrvGenParamTreeView(OrvGenParam::Array *array, QWidget *parent);
    ~OrvGenParamTreeView() override;

    void setParams(OrvGenParam::Array *array) override;
    void setParams(GenApi::INodeMap *nodeMap) override;
    void clearParams() override;
    OrvGui::Visibility visibility() const override;
    void setVisibility(OrvGui::Visibility visibility) override;
    const char *saveState() const override;
    void loadState(const char *state) override;

    /// The inner tree view, for adapting its appearance. Do not replace its model, delegate or
    /// selection model.
    QTreeView *treeView() const;

private:
    friend class OrvGenParamTreeViewPrivate;

    QScopedPointer<OrvGenParamTreeViewPrivate> d;
};

} // namespace OrvGui

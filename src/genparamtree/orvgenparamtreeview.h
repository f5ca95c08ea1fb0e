// SPDX-License-Identifier: MIT
#pragma once

#include "iorvgenparamtreeview.h"

#include <QScopedPointer>
#include <QWidget>

class QTreeView;

namespace OrvGui {

class OrvGenParamTreeViewPrivate;

/// Shows the features of a camera, or of anything else with a node map, as an editable tree: a
/// choice of the visibility level on top, the tree in the middle, and below it a description of the
/// current feature.
///
/// A widget like any other for Qt programs; see `IOrvGenParamTreeView` for what the host must keep
/// alive and for the meaning of the operations. Values are edited in place and written at once;
/// what the camera refuses silently falls back to the camera's value.
///
/// With a node map that is an `OrvGenParam::LookAhead`, only a write waits for the camera. Values
/// appear as they come, and an editor opens when its value and limits have come. The model of
/// `treeView()` then tells what is known; a `GenParamTreeModel` of the host's own waits.
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

    /// The tree itself, to adapt its looks. Its model, delegate and selection model are the
    /// widget's business.
    QTreeView *treeView() const;

private:
    friend class OrvGenParamTreeViewPrivate;

    QScopedPointer<OrvGenParamTreeViewPrivate> d;
};

} // namespace OrvGui

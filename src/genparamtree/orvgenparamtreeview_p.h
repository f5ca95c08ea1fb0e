// SPDX-License-Identifier: MIT
#pragma once

#include "genparamtree/knownvaluesmodel.h"
#include "genparamtree/orvgenparamtreeview.h"
#include "genparamtree/safedelegate.h"
#include "genparamtree/treelookahead.h"

#include <QPointer>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace Ui {
class GenParamTreeView;
}

namespace OrvGui {

/// True for rows that are not features of the camera, although their `Qt::UserRole` is a feature.
constexpr int ownRowRole = Qt::UserRole + 1;

/// Private part of `OrvGenParamTreeView`. Widgets of this library that contain a tree use it for
/// functions that are not for hosts.
class OrvGenParamTreeViewPrivate
{
public:
    OrvGenParamTreeViewPrivate();
    ~OrvGenParamTreeViewPrivate();

    static OrvGenParamTreeViewPrivate &of(OrvGenParamTreeView &view) { return *view.d; }

    template<typename Source>
    void Init(OrvGenParamTreeView *view, Source *source);
    void buildSplitter();
    void watchFirstShow();
    void halveColumns();

    template<typename Source>
    void setModel(Source *source);
    void setModel(std::nullptr_t);
    void setLookAhead(TreeLookAhead *lookAhead);
    template<class Visit>
    void visitCategories(const QModelIndex &parent, const std::string &parentPath,
                         const Visit &visit) const;
    void spanCategories();
    void applyLevel(GenParamTreeVisibilityFilterProxyModel *proxy);
    void endEditing();
    void moveToVisibleRow(int level);
    void describeCurrent();

    void saveState();
    void loadState(const char *text);

    OrvGenParamTreeView *q = nullptr;
    const std::unique_ptr<Ui::GenParamTreeView> ui;
    SafeDelegate *valueDelegate = nullptr;
    QPointer<TreeLookAhead> lookAhead; ///< of the model

    /// Creates a model that the tree shows in place of the given one, which the new model owns.
    /// Called for each node map.
    std::function<QAbstractItemModel *(KnownValuesModel *)> wrap;

    std::string state;
    bool columnWidthRestored = false;
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "genparamtree/iorvgenparamtreeview.h"

#include <QString>

namespace OrvGui {

/// Creates and shows a tree view of a node map or a parameter array, inside the window with that
/// native id unless the id is 0. Creates the application when there is none. The caller owns the
/// view.
///
/// Never returns null. The view is empty when the source fails while the tree is built.
template<typename Source>
IOrvGenParamTreeView *CreateGenParamTreeView(Source *params, const QString &title,
                                             unsigned long parent);

/// The same for a browser, which contains a tree.
template<typename Source>
IOrvGenParamTreeView *CreateFeatureBrowser(Source *params, const QString &title,
                                           unsigned long parent);

extern template IOrvGenParamTreeView *
CreateGenParamTreeView<GenApi::INodeMap>(GenApi::INodeMap *, const QString &, unsigned long);
extern template IOrvGenParamTreeView *
CreateGenParamTreeView<OrvGenParam::Array>(OrvGenParam::Array *, const QString &, unsigned long);
extern template IOrvGenParamTreeView *
CreateFeatureBrowser<GenApi::INodeMap>(GenApi::INodeMap *, const QString &, unsigned long);
extern template IOrvGenParamTreeView *
CreateFeatureBrowser<OrvGenParam::Array>(OrvGenParam::Array *, const QString &, unsigned long);

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include "genparamtree/iorvgenparamtreeview.h"

#include <QString>

namespace OrvGui {

/// Makes and shows a tree view of a node map or a parameter array, inside the window of that native
/// id unless it is 0. Makes the application when there is none. The caller owns the view.
///
/// A source that fails while its tree is built gives an empty view. Never null.
template<typename Source>
IOrvGenParamTreeView *CreateGenParamTreeView(Source *params, const QString &title,
                                             unsigned long parent);

/// The same with a browser around the tree.
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

// SPDX-License-Identifier: MIT
#include "creategenparamtreeview.h"

#include "applicationbootstrap.h"
#include "embeddedtreeview.h"
#include "treeviewparent.h"

#include <Base/GCException.h>

#include <memory>

namespace OrvGui {

namespace {

std::unique_ptr<OrvGenParamTreeView> makeView(const TreeViewParent &holder)
{
    if (holder.container)
        return std::unique_ptr<OrvGenParamTreeView>(new EmbeddedTreeView(holder));
    return std::unique_ptr<OrvGenParamTreeView>(new OrvGenParamTreeView);
}

} // namespace

template<typename Source>
IOrvGenParamTreeView *CreateGenParamTreeView(Source *params, const QString &title,
                                             unsigned long parent)
{
    ensureApplication();
    std::unique_ptr<TreeViewParent> holder(new TreeViewParent);
    if (parent)
        holder->wrap(parent);

    // Declared after the holder, so that it goes first when something throws.
    std::unique_ptr<OrvGenParamTreeView> view = makeView(*holder);
    try {
        view->setParams(params);
    } catch (const GenICam::GenericException &) {
        view->clearParams();
    }
    holder.release()->setParent(view.get());
    view->setWindowTitle(title);
    view->show();
    return view.release();
}

template IOrvGenParamTreeView *
CreateGenParamTreeView<GenApi::INodeMap>(GenApi::INodeMap *, const QString &, unsigned long);
template IOrvGenParamTreeView *
CreateGenParamTreeView<OrvGenParam::Array>(OrvGenParam::Array *, const QString &, unsigned long);

} // namespace OrvGui

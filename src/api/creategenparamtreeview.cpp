// SPDX-License-Identifier: MIT
#include "api/creategenparamtreeview.h"

#include "api/applicationbootstrap.h"
#include "api/embedded.h"
#include "browser/orvfeaturebrowser.h"
#include "genparamtree/orvgenparamtreeview.h"

#include <Base/GCException.h>

#include <memory>

namespace OrvGui {

namespace {

template<class View>
std::unique_ptr<View> makeView(const TreeViewParent &holder)
{
    if (holder.container)
        return std::unique_ptr<View>(new Embedded<View>(holder));
    return std::unique_ptr<View>(new View);
}

template<class View, typename Source>
View *create(Source *params, const QString &title, unsigned long parent)
{
    ensureApplication();
    std::unique_ptr<TreeViewParent> holder(new TreeViewParent);
    if (parent)
        holder->wrap(parent);

    // Declared after the holder, so that it is destroyed first when something throws.
    std::unique_ptr<View> view = makeView<View>(*holder);
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

} // namespace

template<typename Source>
IOrvGenParamTreeView *CreateGenParamTreeView(Source *params, const QString &title,
                                             unsigned long parent)
{
    return create<OrvGenParamTreeView>(params, title, parent);
}

template<typename Source>
IOrvGenParamTreeView *CreateFeatureBrowser(Source *params, const QString &title,
                                           unsigned long parent)
{
    return create<OrvFeatureBrowser>(params, title, parent);
}

template IOrvGenParamTreeView *
CreateGenParamTreeView<GenApi::INodeMap>(GenApi::INodeMap *, const QString &, unsigned long);
template IOrvGenParamTreeView *
CreateGenParamTreeView<OrvGenParam::Array>(OrvGenParam::Array *, const QString &, unsigned long);
template IOrvGenParamTreeView *
CreateFeatureBrowser<GenApi::INodeMap>(GenApi::INodeMap *, const QString &, unsigned long);
template IOrvGenParamTreeView *
CreateFeatureBrowser<OrvGenParam::Array>(OrvGenParam::Array *, const QString &, unsigned long);

} // namespace OrvGui

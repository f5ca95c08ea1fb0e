// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <GenApi/INodeMap.h>

namespace OrvGenParam {
class Array;
}

namespace OrvGui {

/// The visibility level of a tree; the values are those of GenApi's levels Beginner, Expert and
/// Guru.
enum Visibility : int { Basic = 0, Expert = 1, Guru = 2 };

/// The interface of a parameter tree for programs without Qt.
///
/// Created by the `CreateGenParamTreeViewFor…` functions and destroyed with
/// `DestroyGenParamTreeView`.
///
/// The caller keeps ownership of the node map, and of the array that it belongs to. Both must exist
/// until the tree is given other parameters (`setParams`), is cleared (`clearParams`) or is
/// destroyed. A value that the user is editing at that moment is not written; its editor is closed.
/// Call all functions on the thread of the Qt application. Inside a node callback that a write of
/// the tree caused, the tree may be given other parameters, but must not be destroyed.
class ORVCAMERAGUIAPI_EXPORT IOrvGenParamTreeView
{
public:
    virtual ~IOrvGenParamTreeView();

    /// Shows the parameters of an array; null shows nothing.
    virtual void setParams(OrvGenParam::Array *array) = 0;

    /// Shows the features of a node map; null shows nothing.
    virtual void setParams(GenApi::INodeMap *nodeMap) = 0;

    /// Shows nothing.
    virtual void clearParams() = 0;

    virtual OrvGui::Visibility visibility() const = 0;
    virtual void setVisibility(OrvGui::Visibility visibility) = 0;

    /// Returns the expanded categories, the width of the name column and the visibility level as
    /// one UTF-8 text for `loadState`; empty when nothing is shown. The pointer is valid until the
    /// next `saveState` or `loadState` of this tree, or until the tree is destroyed.
    virtual const char *saveState() const = 0;

    /// Restores the state that `saveState` returned for a tree with the same features. Categories
    /// are expanded and collapsed at the level set at the time of the call. Null and the empty text
    /// change nothing, nor does any text while nothing is shown.
    ///
    /// Throws `std::invalid_argument` when the width or the level in the text is not a number, and
    /// `std::out_of_range` when it is too large. The expansion has been restored by then.
    virtual void loadState(const char *state) = 0;
};

} // namespace OrvGui

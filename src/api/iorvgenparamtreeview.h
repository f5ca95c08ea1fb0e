// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <GenApi/INodeMap.h>

namespace OrvGenParam {
class Array;
}

namespace OrvGui {

/// How advanced the features are that a tree shows; the values are those of GenApi's visibility
/// levels Beginner, Expert and Guru.
enum Visibility : int { Basic = 0, Expert = 1, Guru = 2 };

/// A parameter tree, as programs see it that know nothing of Qt.
///
/// Made by the `CreateGenParamTreeViewFor…` functions and ended with `DestroyGenParamTreeView`.
///
/// What the tree shows stays the caller's: a node map, and the array that it comes from, must live
/// until the tree shows something else (`setParams`), nothing (`clearParams`) or is gone. It does
/// not matter whether the user is editing a value at that moment: the editor is closed, and what it
/// held is not written. Call from the thread of the Qt application. A tree may be given other
/// parameters, but must not be destroyed, from inside a node callback that one of its own writes
/// caused.
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

    /// Which categories are expanded, the width of the name column and the visibility level, as one
    /// UTF-8 text for `loadState`; empty when nothing is shown. The pointer stays valid until the
    /// next `saveState` or `loadState` of this tree, or its end.
    virtual const char *saveState() const = 0;

    /// Restores what `saveState` saved of a tree with the same features. The categories are those
    /// visible at the level that is set when this is called. Null and the empty text change
    /// nothing, nor does any text while nothing is shown.
    ///
    /// A text in which the width or the level is no number makes this throw
    /// `std::invalid_argument`, one in which it is too large `std::out_of_range`; the expansion is
    /// changed by then.
    virtual void loadState(const char *state) = 0;
};

} // namespace OrvGui

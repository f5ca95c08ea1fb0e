// SPDX-License-Identifier: MIT
#include "genparamtree/iorvgenparamtreeview.h"

namespace OrvGui {

// Defined here so that the class's type information exists once, in the library.
IOrvGenParamTreeView::~IOrvGenParamTreeView() = default;

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#include "treeviewparent.h"

namespace OrvGui {

TreeViewParent::TreeViewParent() = default;

TreeViewParent::~TreeViewParent()
{
    delete container;
    delete window;
}

void TreeViewParent::wrap(unsigned long nativeId)
{
    delete window;
    window = QWindow::fromWinId(static_cast<WId>(nativeId));
    delete container;
    if (window)
        container = QWidget::createWindowContainer(window);
}

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace OrvGui {

/// Owns what wraps a host's native window for a tree view. Made the view's child, so that it ends
/// with the view.
class TreeViewParent : public QObject
{
    Q_OBJECT

public:
    TreeViewParent();
    ~TreeViewParent() override;

    /// Wraps the window. Both stay null on a platform that cannot.
    void wrap(unsigned long nativeId);

    // The container deletes the window around which it was made, hence the guarded pointers.
    QPointer<QWindow> window;
    QPointer<QWidget> container;
};

} // namespace OrvGui

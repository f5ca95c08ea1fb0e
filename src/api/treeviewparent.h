// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace OrvGui {

class HostWindow;

/// Owns what wraps a host's native window for a tree view. Made the view's child, so that it ends
/// with the view.
class TreeViewParent : public QObject
{
    Q_OBJECT

public:
    TreeViewParent();
    ~TreeViewParent() override;

    /// Wraps the window of that native id, which stays what and where it is. Everything remains
    /// null on a platform that knows no foreign windows, such as Wayland, and a warning says so.
    void wrap(unsigned long nativeId);

    // Deleting the container deletes the window, too; hence the guarded pointers.
    QPointer<QWindow> window;
    QPointer<QWidget> container;

    HostWindow *hostWindow = nullptr; ///< a child

private:
    QPointer<QWindow> m_outerWindow;
};

} // namespace OrvGui

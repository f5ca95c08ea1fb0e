// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace OrvGui {

class HostWindow;

/// Owns the wrapper of a host's native window for a tree view. It becomes the view's child, so that
/// it is destroyed with the view.
class TreeViewParent : public QObject
{
    Q_OBJECT

public:
    TreeViewParent();
    ~TreeViewParent() override;

    /// Wraps the window of that native id, which is not changed. On a platform without foreign
    /// windows, such as Wayland, all members stay null and a warning is written.
    void wrap(unsigned long nativeId);

    // Deleting the container deletes the window, too, so the pointers are guarded.
    QPointer<QWindow> window;
    QPointer<QWidget> container;

    HostWindow *hostWindow = nullptr; ///< a child

private:
    QPointer<QWindow> m_outerWindow;
};

} // namespace OrvGui

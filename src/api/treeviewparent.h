// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace OrvGui {

class HostWindow;

/// Owns the wrapper of a host's native window. Becomes a child of the view, and so is destroyed
/// with it.
class TreeViewParent : public QObject
{
    Q_OBJECT

public:
    TreeViewParent();
    ~TreeViewParent() override;

    /// Wraps the window with that native id; the window itself is not changed. On a platform
    /// without foreign windows, such as Wayland, all members stay null and a warning is written.
    void wrap(unsigned long nativeId);

    // Deleting the container also deletes the window, so the pointers are guarded.
    QPointer<QWindow> window;
    QPointer<QWidget> container;

    HostWindow *hostWindow = nullptr; ///< a child

private:
    QPointer<QWindow> m_outerWindow;
};

} // namespace OrvGui

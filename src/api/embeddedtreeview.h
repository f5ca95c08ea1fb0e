// SPDX-License-Identifier: MIT
#pragma once

#include "orvgenparamtreeview.h"

#include <QRect>

class QWindow;

namespace OrvGui {

class TreeViewParent;

/// A tree view that fills a native window of its host, and follows its size.
///
/// Its parent widget is the container that the holder has put around the host's window. Qt's
/// containers show a foreign window inside a window of ours; a host wants the opposite. So the
/// container stays hidden, and the view gets a native window that is a child of the host's.
class EmbeddedTreeView : public OrvGenParamTreeView
{
    Q_OBJECT

public:
    /// The holder must have wrapped a window.
    explicit EmbeddedTreeView(const TreeViewParent &holder);
    ~EmbeddedTreeView() override;

protected:
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fill(const QSize &devicePixels);
    void stay();

    QRect m_place; ///< in the host's window
};

} // namespace OrvGui

// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

/// The view of a device tree. An interface without cameras, too, has an arrow: a click on it, a
/// double click on the row or the right arrow key looks for cameras there again.
class CameraTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit CameraTreeView(QWidget *parent = nullptr);

protected:
    void drawBranches(QPainter *painter, const QRect &rect,
                      const QModelIndex &index) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool isWithoutCameras(const QModelIndex &index) const;
    void lookAgain(const QModelIndex &interface);
};
